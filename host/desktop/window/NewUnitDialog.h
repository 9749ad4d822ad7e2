#pragma once

#include <QDialog>
#include <string>

class QComboBox;
class QLineEdit;

namespace veldra::host::desktop {

/// Asks for the kind and the name of a new unit.
class NewUnitDialog : public QDialog {
  Q_OBJECT

 public:
  explicit NewUnitDialog(QWidget* parent);
  std::string unitType() const;
  QString name() const;

 private:
  QComboBox* m_type;
  QLineEdit* m_name;
};

}  // namespace veldra::host::desktop
