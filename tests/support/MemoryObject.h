#pragma once

#include <memory>
#include <string>
#include <utility>

#include "cm/host/IDObject.h"
#include "tests/support/MemoryProperty.h"

namespace veldra::test {

/// A weak reference: it shares a token with its object, which the object takes along when it dies.
/// A new object at the same address has a token of its own.
class MemoryHandle : public IHandle {
 public:
  explicit MemoryHandle(std::weak_ptr<IDObject*> life) : m_life(std::move(life)) {}
  IDObject* doGetObject() const override {
    const std::shared_ptr<IDObject*> life = m_life.lock();
    return life ? *life : nullptr;
  }

 private:
  std::weak_ptr<IDObject*> m_life;
};

/// Identity and properties, which every object of the model has.
template <class Interface>
class MemoryObject : public Interface {
 public:
  MemoryObject() = default;
  MemoryObject(const MemoryObject&) = delete;
  MemoryObject& operator=(const MemoryObject&) = delete;

  std::unique_ptr<IHandle> getHandle() override { return std::make_unique<MemoryHandle>(m_life); }

  IProperty* findProperty(const std::string& subject, const std::string& metaclass,
                          const std::string& name, bool localOnly) override {
    if (IProperty* own = m_properties.find(subject, metaclass, name)) return own;
    if (localOnly || m_inheritsFrom == nullptr) return nullptr;
    return m_inheritsFrom->findProperty(subject, metaclass, name, false);
  }

  void attachProperty(const std::string& subject, const std::string& metaclass,
                      std::unique_ptr<IProperty> property) override {
    m_properties.attach(subject, metaclass, std::move(property));
  }

  PropertyTable& properties() { return m_properties; }
  /// Where the search for a property goes on.
  void inheritFrom(IDObject* object) { m_inheritsFrom = object; }
  IDObject* inheritsFrom() const { return m_inheritsFrom; }

 private:
  PropertyTable m_properties;
  IDObject* m_inheritsFrom = nullptr;
  std::shared_ptr<IDObject*> m_life = std::make_shared<IDObject*>(this);
};

/// An object that has a name and properties but no file: a component, a configuration, a layer of
/// settings.
template <class Interface>
class NamedObject : public MemoryObject<Interface> {
 public:
  NamedObject(std::string name, std::string typeName)
      : m_name(std::move(name)), m_typeName(std::move(typeName)) {}
  std::string getName() const override { return m_name; }
  std::string getTypeName() const override { return m_typeName; }
  IUnit* getSaveUnit() override { return nullptr; }
  void setModified(bool, bool) override {}

 private:
  std::string m_name;
  std::string m_typeName;
};

}  // namespace veldra::test
