// Finding, changing and attaching CM properties.

#include <optional>
#include <string>
#include <utility>

#include "cm/core/DebugEcho.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The metaclass of the selected tool's properties: that of the provider, or the command-line
/// tool's name; nothing when there is no tool.
std::optional<std::string> toolMetaclass(IDObject* object, bool providerMetaclass) {
  if (CMProperty::getUseSCCtool() != 0) {
    return providerMetaclass ? CMProperty::getSCCToolName() : IPN::SCC;
  }
  const IProperty* const tool = CMProperty::getCMTool(object, false);
  return tool != nullptr ? std::optional(tool->getValue()) : std::nullopt;
}

/// Stores a changed copy of an inherited property on the object.
void attachCopy(IDObject& object, const std::string& metaclass, const IProperty& property,
                const std::string& value) {
  std::unique_ptr<IProperty> copy = property.copy();
  copy->setValue(value);
  object.attachProperty(IPN::CM, metaclass, std::move(copy));
}

}  // namespace

IDObject* CMProperty::getReferee(IDObject* object) {
  if (object != nullptr) return object;
  IProject* const project = CurrentWorkspace::GetActiveProject();
  IComponent* const component = project != nullptr ? project->getComponent() : nullptr;
  if (component == nullptr) return nullptr;
  if ((component->getFlags() & IComponent::CarriesProperties) != 0) return component;
  if (IConfiguration* const configuration = project->getConfiguration()) return configuration;
  debugEcho({"cannot get valid referee\n"});
  return nullptr;
}

IProperty* CMProperty::getCMTool(IDObject* object, bool localOnly) {
  IDObject* const referee = getReferee(object);
  IProperty* const tool =
      referee != nullptr ? referee->findProperty(IPN::CM, IPN::CMGeneral, IPN::CMTool, localOnly)
                         : nullptr;
  if (tool == nullptr)
    debugEcho({"could not find the property that states which is the CM tool\n"});
  return tool;
}

int CMProperty::setCMTool(const std::string& name, IDObject* object) {
  if (IProperty* const local = getCMTool(object, true)) {
    local->setValue(name);
    return 1;
  }
  const IProperty* const inherited = getCMTool(object, false);
  if (inherited == nullptr) return 0;
  attachCopy(*getReferee(object), IPN::CMGeneral, *inherited, name);
  return 1;
}

IProperty* CMProperty::getToolProperty(const std::string& name, IDObject* object, bool localOnly,
                                       bool providerMetaclass) {
  IDObject* const referee = getReferee(object);
  if (referee == nullptr) return nullptr;
  const std::optional<std::string> metaclass = toolMetaclass(object, providerMetaclass);
  IProperty* const found =
      metaclass ? referee->findProperty(IPN::CM, *metaclass, name, localOnly) : nullptr;
  if (found != nullptr) return found;
  // The common settings count wherever they are stored.
  IProperty* const common = referee->findProperty(IPN::CM, IPN::General, name, false);
  if (common == nullptr) {
    debugEcho({"could not find the property '", name, "'", " for ", metaclass.value_or(""), "\n"});
  }
  return common;
}

int CMProperty::setToolProperty(const std::string& name, const std::string& value,
                                IDObject* object) {
  if (getToolProperty(name, object) == nullptr) return 0;
  IDObject& referee = *getReferee(object);
  const std::string metaclass = toolMetaclass(object, false).value_or(IPN::General);
  // Only a property of the object itself is changed: an inherited one belongs to others, too, and
  // one under "General" would stay hidden behind the tool's own.
  for (const std::string& place : {metaclass, std::string(IPN::General)}) {
    const IProperty* const present = referee.findProperty(IPN::CM, place, name, false);
    if (present == nullptr) continue;
    if (IProperty* const local = referee.findProperty(IPN::CM, place, name, true)) {
      local->setValue(value);
    } else {
      attachCopy(referee, metaclass, *present, value);
    }
    return 1;
  }
  return 0;
}

bool CMProperty::getToolPropertyValue(const std::string& name, std::string& value,
                                      bool providerMetaclass) {
  const IProperty* const property = getToolProperty(name, nullptr, false, providerMetaclass);
  if (property == nullptr) return false;
  value = property->getValue();
  return true;
}

int CMProperty::setToolPropertyValue(const std::string& name, const std::string& value) {
  return setToolProperty(name, value, nullptr);
}

IProperty* CMProperty::getProjectProperty(const std::string& metaclass, const std::string& name) {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  return project != nullptr ? project->findProperty(IPN::CM, metaclass, name, false) : nullptr;
}

bool CMProperty::getProjectBool(const std::string& metaclass, const std::string& name,
                                bool missing) {
  const IProperty* const property = getProjectProperty(metaclass, name);
  return property != nullptr ? property->getBool() : missing;
}

}  // namespace veldra
