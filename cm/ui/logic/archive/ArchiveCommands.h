#pragma once

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/ItemView.h"

namespace veldra {

/// The commands of the archive browser that bring files out of the archive. Each asks, calls,
/// tells the user what failed, and lets the window refresh itself when nothing did.
class VELDRA_CM_EXPORT ArchiveCommands {
 public:
  /// `view` must outlive the object.
  explicit ArchiveCommands(ItemView& view) : m_view(view) {}

  /// True when the command ran and was successful; otherwise the user gave up or has been told.
  bool OnArcCo();
  bool OnArcFetch();

 private:
  bool OnRecCheckOut(const CMArchiveItemList& selected, const CommandOptions& options);
  bool checkOut(CMArchiveItemList& selected, const CommandOptions& options);
  bool fetch(CMArchiveItemList& items, const CommandOptions& options);
  bool finish(bool succeeded, int failureMessage);

  ItemView& m_view;
  DiagnosticList m_diagnostics;
};

}  // namespace veldra
