#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "cm/ui/Export.h"
#include "cm/ui/logic/LiveUnits.h"

namespace veldra {

/// Associates a unit with an archive of its own. The host opens it.
class VELDRA_CM_UI_EXPORT CCMUnitArchiveDlg : public QDialog {
  Q_OBJECT

 public:
  /// `unit` may die while the window is open.
  explicit CCMUnitArchiveDlg(IUnit* unit, QWidget* parent = nullptr);

  void reject() override;

 private:
  void addFields();
  QPushButton* addButton(int id, const QString& caption, void (CCMUnitArchiveDlg::*pressed)());
  void associate();
  void associateNew();
  void disassociate();
  void showArchive();

  LiveUnits m_unit;
  std::string m_formerProject;  ///< What Cancel puts back.
  std::string m_formerAuxPath;
  bool m_wasConnected;
  QLineEdit* m_path;
};

}  // namespace veldra
