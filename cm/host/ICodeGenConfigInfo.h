#pragma once

namespace veldra {

class IUnit;

/// The project's active code-generation configuration.
class ICodeGenConfigInfo {
 public:
  virtual ~ICodeGenConfigInfo() = default;
  /// Whether generated files keep what was written into them by hand.
  virtual bool isRespectMode() const = 0;
  /// Whether at least one source file of the configuration is made from the unit.
  virtual bool isObserved(const IUnit* unit) const = 0;
};

}  // namespace veldra
