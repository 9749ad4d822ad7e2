#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/CommandView.h"
#include "cm/ui/logic/LiveUnits.h"

namespace veldra {

/// Runs a command of the main dialog the way that all of them go: selection rule, options, call,
/// results, refresh.
class VELDRA_CM_EXPORT CommandRun {
 public:
  /// `view` must outlive the object.
  explicit CommandRun(CommandView& view) : m_view(view) {}

  /// True when the command ran and was successful; otherwise the user gave up or has been told.
  bool run(const CommandRow& row);

 private:
  bool runInside(const CommandRow& row);
  bool askFirst(const CommandRow& row, CommandOptions& options);
  bool askWindow(const CommandRow& row, CommandOptions& options);
  bool askUndo(CommandOptions& options);
  bool askSubUnits(CommandOptions& options);
  static bool allowsConnecting();
  bool takeSelection(const CommandRow& row, const CommandOptions& options, UnitList& units);
  bool runPlain(const CommandRow& row, const CommandOptions& options);
  bool runRecursive(const CommandRow& row, const CommandOptions& options);
  bool call(const CommandRow& row, UnitCommandFunction function, UnitList& units,
            const CommandOptions& options);
  bool callRecursive(const CommandRow& row, UnitList& units, const CommandOptions& options);
  bool fetchRecursive(const CommandRow& row, const UnitList& units, const CommandOptions& options);
  void tellRemarks() const;
  bool reloadBelow(const RecursiveVariant& variant);
  void tellFailure(const CommandRow& row);
  void keepComment(const CommandRow& row, const CommandOptions& options, bool succeeded) const;
  bool finish(const CommandRow& row, const CommandOptions& options, bool succeeded);

  CommandView& m_view;
  LiveUnits m_selection;
  LiveUnits m_taken;             ///< What a recursive variant works on.
  const char* m_completed = "";  ///< Trace line for the end.
  DiagnosticList m_diagnostics;
};

}  // namespace veldra
