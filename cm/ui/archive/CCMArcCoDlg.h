#pragma once

#include "cm/ui/ItemWindow.h"

namespace veldra {

/// The archive browser: what the archive holds, as a list, and buttons that bring entries out of it
/// or compare them.
class VELDRA_CM_UI_EXPORT CCMArcCoDlg : public ItemWindow {
  Q_OBJECT

 public:
  /// The items are the caller's and must outlive the dialog.
  explicit CCMArcCoDlg(const CMArchiveItemList& items, QWidget* parent = nullptr);

  void OnArcCo();
  void OnArcFetch();
  void OnArcVdDiff();
  void OnArcCmDiff();
  bool CheckForDescendentsInSelectedItems();
};

}  // namespace veldra
