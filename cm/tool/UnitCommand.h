#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_set>

#include "cm/core/CMOperation.h"
#include "cm/core/CMUnitValidator.h"
#include "cm/core/UnitReload.h"
#include "cm/host/Reload.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

/// One unit on its way through an operation.
struct UnitRun {
  IUnit* unit;  ///< The unit; an after-step puts a reloaded one in its place.
  CMUnitValidator& validator;
  CMVDYHandler* handler = nullptr;
  CCMFileCompare* compare = nullptr;
  int status = 0;     ///< What the operation returns if this is the last unit.
  bool drop = false;  ///< Takes the unit out of the caller's list.
  bool reloadFailed = false;
  std::string errorText{};
};

/// The frame of the operations that run one command per unit: arguments on, expand, run, act,
/// arguments off. An operation is a row of data and the steps of its own.
///
/// The result is that of the last unit; what became of each is in the output window and reported as
/// progress. Units whose file name no command can carry are refused with a diagnostic before the
/// first command runs.
class UnitCommand : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

 protected:
  virtual const OperationRow& row() const = 0;
  /// The template for one unit; that of the row unless an operation has several.
  virtual const char* templateFor(IUnit& unit) const;
  /// False for a unit that cannot take part; the operation has then told the user why.
  virtual bool accepts(IUnit& unit) const;
  /// Before the command; makes the comparison for operations that reload by it.
  virtual std::unique_ptr<CCMFileCompare> snapshot(IUnit& unit) const;
  /// After a command that could be run.
  virtual void after(UnitRun& run) const;

 private:
  void runUnit(UnitRun& run, ArgumentList& arguments, UnitProgress& progress) const;
  /// Refuses what cannot be carried; one diagnostic per unit.
  std::unordered_set<const IUnit*> refused(const UnitList& units,
                                           DiagnosticList& diagnostics) const;
  int runAll(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) const;
};

/// Makes the unit's archive the main one, unless the user chooses the archive.
void chooseArchiveOf(const IUnit* unit);

}  // namespace veldra
