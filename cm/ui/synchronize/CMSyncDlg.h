#pragma once

#include "cm/ui/ItemWindow.h"
#include "cm/ui/logic/synchronize/SyncListing.h"

class QComboBox;
class QFormLayout;

namespace veldra {

/// The synchronize dialog: the entries of the archive that differ from the model, and the command
/// that takes them over.
class VELDRA_CM_UI_EXPORT CMSyncDlg : public ItemWindow {
  Q_OBJECT

 public:
  /// `parent` is told when units have been taken over: it gets the message `RefreshMessage`.
  explicit CMSyncDlg(QWidget* parent = nullptr);

  static bool canSynchronize(int flag);
  /// Lists in the background and opens the dialog only when something differs. The code is the
  /// host's and has no meaning here.
  static void flashDlgOnDiff(int code);

  /// Lists workspace and archive; false when the archive could not be listed.
  bool listFirst(const std::string& label, DiagnosticList& diagnostics);
  const SyncListing& listing() const { return m_listing; }

  /// Lists both anew.
  void OnSyncRefresh();
  void OnSyncCo();
  /// Stores the choices in the project and closes; the only way out.
  void OnCancel();
  void reject() override { OnCancel(); }

 private:
  void refreshItems() override;
  void addMethod();
  bool usesMethod() const;
  std::string label() const;
  void listAgain();
  void methodChosen(int entry);

  SyncListing& m_listing;
  QComboBox* m_method = nullptr;
  QFormLayout* m_form = nullptr;
  QLineEdit* m_label = nullptr;
};

}  // namespace veldra
