#pragma once

#include <memory>
#include <string>

#include "cm/host/IUnit.h"

namespace veldra {

/// Reloads a unit from its changed file ("add to model", ATM) in place.
class QuickATMFacade {
 public:
  virtual ~QuickATMFacade() = default;
  /// Whether the unit can be reloaded where it stands.
  virtual bool CanReloadUnit(IUnit* unit) = 0;
  /// Reloads the unit. The result is a new object; the old one may be gone. Null on failure.
  virtual IUnit* reloadUnit(IUnit* unit) = 0;
};

/// Loads a file into the model below one owner or directory.
class ATMFacade {
 public:
  virtual ~ATMFacade() = default;
  /// Adds the file's unit to the model, in place of one of the same file. Null on failure.
  virtual IUnit* addToModel(const std::string& fileName) = 0;
};

/// Compares a unit's file before and after a command.
class CCMFileCompare {
 public:
  virtual ~CCMFileCompare() = default;
  virtual void LoadFile1() = 0;  ///< Takes the snapshot before the command.
  virtual void LoadFile2() = 0;  ///< Takes the snapshot after the command.
  /// Non-zero when the two snapshots allow the unit to stay the same object.
  virtual int Compare() = 0;
  /// Brings the unit up to date without replacing it. Null on failure.
  virtual IUnit* atm(IUnit* unit) = 0;
};

}  // namespace veldra
