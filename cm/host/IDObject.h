#pragma once

#include <memory>
#include <string>
#include <vector>

namespace veldra {

class IDObject;
class IProperty;
class IUnit;

/// A weak reference to a model object. It can tell a dead object from a new one at the same
/// address.
class IHandle {
 public:
  virtual ~IHandle() = default;

  /// The object this handle was made for, or null once that object is gone.
  virtual IDObject* doGetObject() const = 0;
};

/// Any object of the host's model. The module never owns one.
class IDObject {
 public:
  virtual ~IDObject() = default;

  virtual std::string getName() const = 0;

  /// The user's word for the kind of object, for example "Package".
  virtual std::string getTypeName() const = 0;

  /// A new weak reference, owned by the caller. Null when the host cannot give one.
  virtual std::unique_ptr<IHandle> getHandle() = 0;

  /// The unit whose file holds this object; the object itself when it is such a unit, or null.
  virtual IUnit* getSaveUnit() = 0;

  /// Marks the object as changed, so that the next save writes it.
  /// `modified` sets the object's own mark, `saveUnit` that of the unit which holds it.
  virtual void setModified(bool modified, bool saveUnit) = 0;

  /// Whether the object differs from what was saved last. A host that does not know says no.
  virtual bool isModified() const { return false; }

  /// The objects that this one owns, in the order in which the model shows them; not owned by the
  /// caller. Empty when it owns none.
  virtual std::vector<IDObject*> getAggregates() { return {}; }

  /// What a stub is marked with behind its name.
  virtual std::string getURMark() const { return "(U)"; }

  /// This object as a unit, or null.
  virtual IUnit* asUnit() { return nullptr; }

  /// Finds a property. With `localOnly` only those stored on this very object count; otherwise the
  /// search goes on through the owners, the project, the user's and the site's settings and the
  /// shipped tool packs. Null when there is none.
  virtual IProperty* findProperty(const std::string& subject, const std::string& metaclass,
                                  const std::string& name, bool localOnly) = 0;

  /// Stores `property` on this object under subject and metaclass; one of that name that is already
  /// there is replaced. Takes ownership.
  virtual void attachProperty(const std::string& subject, const std::string& metaclass,
                              std::unique_ptr<IProperty> property) = 0;
};

}  // namespace veldra
