#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/CommandView.h"
#include "cm/ui/logic/compare/CompareLaunch.h"

namespace veldra {

/// The command, for its options.
VELDRA_CM_EXPORT const CommandRow& comparisonRow();

/// Whether a unit can be compared with the archive at all: it is loaded and part of the model.
/// Otherwise the user has been told.
VELDRA_CM_EXPORT bool canCompare(IUnit& unit);

/// Whether there is somebody to fetch the other side from: a CM tool, or a provider with a context
/// for the unit. Otherwise the user has been told.
VELDRA_CM_EXPORT bool canFetchForComparison(IUnit& unit);

/// Warns of the labels or versions that were asked for, where a provider brings the newest version
/// whatever is asked. Empty ones ask for nothing.
VELDRA_CM_EXPORT void warnAboutLabels(const std::vector<std::string>& labels);

/// Compares one unit of the model with a version in the archive, in the host's diff/merge tool.
class VELDRA_CM_EXPORT UnitComparison {
 public:
  /// `view` must outlive the object.
  explicit UnitComparison(CommandView& view) : m_view(view) {}

  /// The command of the main dialog: takes the one selected unit, asks for the version, writes both
  /// sides and starts the tool. True when the tool was started; otherwise the user gave up or has
  /// been told.
  bool OnVddiff();
  /// The same with everything below the unit, once the version is known.
  bool OnRecFetch(IUnit& unit, const std::string& label);

 private:
  bool compareOne(IUnit& unit, const std::string& label);
  bool tellFailure();

  CommandView& m_view;
  DiagnosticList m_diagnostics;
};

}  // namespace veldra
