#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "cm/core/CMArguments.h"
#include "cm/core/CMOperation.h"
#include "cm/core/CMUnitValidator.h"
#include "cm/core/UnitReload.h"
#include "cm/host/Reload.h"
#include "cm/tool/ToolFrame.h"
#include "cm/tool/UnitBatches.h"

namespace veldra {

/// What all units of one call have in common.
struct UnitCallFrame {
  ArgumentList& arguments;
  bool hybrid;
  UnitBatches& batches;
};

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
/// first command runs. Where the tool has a batch template, one command does many units; see
/// `UnitBatches`.
class UnitCommand : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

 protected:
  virtual const OperationRow& row() const = 0;
  /// The template for one unit; that of the row unless an operation has several.
  virtual CommandTemplate templateFor(IUnit& unit, const UnitCallFrame& call) const;
  /// For operations that change names: what becomes of the unit's file.
  virtual std::optional<CMNameChange> nameChange(const IUnit& unit,
                                                 const UnitCallFrame& call) const;
  /// False for a unit that cannot take part; the operation has then told the user why.
  virtual bool accepts(IUnit& unit, const UnitCallFrame& call) const;
  /// Before the command; makes the comparison for operations that reload by it.
  virtual std::unique_ptr<CCMFileCompare> snapshot(IUnit& unit) const;
  /// After a command that could be run.
  virtual void after(UnitRun& run) const;

 private:
  struct Verdict {
    UnitEnd end = UnitEnd::Done;
    std::string words{};  ///< Why it may not; empty when nothing was said.
  };
  /// Who may not take part, and who was asked about already and may.
  using Verdicts = std::unordered_map<const IUnit*, Verdict>;

  /// Refuses what no command can carry; one diagnostic per unit.
  Verdicts refuse(const UnitList& units, const UnitCallFrame& call,
                  DiagnosticList& diagnostics) const;
  void runBatches(const UnitList& units, const UnitCallFrame& call, const OverwriteQuestion& asks,
                  Verdicts& verdicts) const;
  UnitPreparation prepare(IUnit& unit) const;
  int runAll(UnitList& units, const UnitCallFrame& call, DiagnosticList& diagnostics) const;
  void runUnit(UnitRun& run, const UnitCallFrame& call, UnitProgress& progress) const;
  /// What the user is to read although the command was well.
  void tellRemark(const ToolAnswer& answer, const std::string& file, UnitProgress& progress) const;
  int runCommand(UnitRun& run, const UnitCallFrame& call, UnitProgress& progress) const;
};

}  // namespace veldra
