#pragma once

#include <string>

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/ItemView.h"
#include "cm/ui/logic/compare/CompareLaunch.h"

namespace veldra {

/// Fetches an item's version into a directory; `label` is a label or version, empty the newest. The
/// working file stays as it is. False when that failed; why is in the CM output and the
/// diagnostics.
VELDRA_CM_EXPORT bool FetchFileFromArchive(CMArchiveItem& item, const std::string& label,
                                           const std::string& directory,
                                           DiagnosticList& diagnostics);
/// The same with everything below the item's unit, in its place below the directory. An item that
/// the model has no unit of comes alone.
VELDRA_CM_EXPORT bool RecFetchFileFromArchive(CMArchiveItem& item, const std::string& label,
                                              const std::string& directory,
                                              DiagnosticList& diagnostics);

/// The comparisons of the archive browser, in the host's diff/merge tool.
class VELDRA_CM_EXPORT ArchiveComparison {
 public:
  /// `view` must outlive the object.
  explicit ArchiveComparison(ItemView& view) : m_view(view) {}

  /// The unit in the model against the selected item. True when the tool was started; otherwise
  /// the user gave up or has been told.
  bool OnArcVdDiff();
  /// Two versions of the selected item.
  bool OnArcCmDiff();

 private:
  using Fetch = bool (*)(CMArchiveItem&, const std::string&, const std::string&, DiagnosticList&);

  bool fetch(Fetch function, CMArchiveItem& item, const std::string& label,
             const std::string& directory);
  bool tellFailure(const CMArchiveItem& item);

  ItemView& m_view;
  DiagnosticList m_diagnostics;
};

}  // namespace veldra
