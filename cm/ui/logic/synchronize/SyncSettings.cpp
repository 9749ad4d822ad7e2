#include "cm/ui/logic/synchronize/SyncSettings.h"

#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/NoUndoScope.h"

namespace veldra {

namespace {

constexpr char Method[] = "Synchronize_Method";
constexpr char Label[] = "label";
constexpr char ByHeader[] = "Header";
constexpr char ByLabel[] = "label";

std::string valueOf(const char* name) {
  const IProperty* const property = CMProperty::getProjectProperty(IPN::General, name);
  return property != nullptr ? property->getValue() : std::string();
}

void store(const char* name, const std::string& value) {
  const IProperty* const property = CMProperty::getProjectProperty(IPN::General, name);
  // A project is not changed for nothing: its file may be read-only.
  if (property == nullptr || property->getValue() == value) return;
  std::unique_ptr<IProperty> own = property->copy();
  own->setValue(value);
  CurrentWorkspace::GetActiveProject()->attachProperty(IPN::CM, IPN::General, std::move(own));
}

}  // namespace

SyncSettings SyncSettings::read() {
  return {.byLabel = equalsNoCase(valueOf(Method), ByLabel), .label = valueOf(Label)};
}

void SyncSettings::write() const {
  const NoUndoScope scope;
  store(Method, byLabel ? ByLabel : ByHeader);
  store(Label, label);
}

}  // namespace veldra
