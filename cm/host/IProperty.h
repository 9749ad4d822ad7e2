#pragma once

#include <memory>
#include <string>

namespace veldra {

/// One setting of a model object, named by subject, metaclass and name.
///
/// Owned by the object (or configuration layer) that holds it, except for copies. A reference that
/// the module received stays valid until the object that holds the property is changed or
/// destroyed.
class IProperty {
 public:
  virtual ~IProperty() = default;

  /// The property's name inside its metaclass.
  virtual std::string getName() const = 0;

  /// The effective value: the override when one is set, otherwise the property's own value.
  virtual std::string getValue() const = 0;

  /// The effective value as a boolean. A text that is no boolean counts as false.
  virtual bool getBool() const = 0;

  /// Sets an override; the value under it is kept.
  virtual void setValue(const std::string& value) = 0;

  /// A free-standing copy that the caller owns and may attach to another object.
  virtual std::unique_ptr<IProperty> copy() const = 0;
};

}  // namespace veldra
