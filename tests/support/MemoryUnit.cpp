#include "tests/support/MemoryUnit.h"

namespace veldra::test {

MemoryProject::MemoryProject(Journal& journal, MemoryFiles& files, UnitRecord data)
    : MemoryUnitOf(journal, files, std::move(data)), unitDirectory(record.directory) {}

IDObject& MemoryProject::propertyHolder() {
  if (hasComponent && (component.flags & IComponent::CarriesProperties) != 0) return component;
  return configuration;
}

IProperty* MemoryProject::findProperty(const std::string& subject, const std::string& metaclass,
                                       const std::string& name, bool localOnly) {
  return propertyHolder().findProperty(subject, metaclass, name, localOnly);
}

void MemoryProject::attachProperty(const std::string& subject, const std::string& metaclass,
                                   std::unique_ptr<IProperty> property) {
  propertyHolder().attachProperty(subject, metaclass, std::move(property));
}

}  // namespace veldra::test
