#include "host/desktop/window/NewUnitDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "cm/ui/widgets/Control.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/Icons.h"

namespace veldra::host::desktop {

NewUnitDialog::NewUnitDialog(QWidget* parent)
    : QDialog(parent), m_type(new QComboBox), m_name(new QLineEdit) {
  setWindowTitle(tr("New Unit"));
  setMinimumWidth(380);
  m_type->addItem(icon("component"), tr("Component"), "Component");
  m_type->addItem(icon("diagram"), tr("Diagram"), "Diagram");
  m_type->addItem(icon("package"), tr("Package"), "Package");
  m_type->setAccessibleDescription(tr("What the unit is"));
  m_name->setAccessibleDescription(tr("The name of the unit, and of its file"));
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Kind:"), m_type);
  form->addRow(tr("&Name:"), m_name);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setEnabled(false);
  describeButtons(*buttons);
  connect(m_name, &QLineEdit::textChanged, ok,
          [ok](const QString& text) { ok->setEnabled(!text.trimmed().isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  m_name->setFocus();
}

std::string NewUnitDialog::unitType() const {
  return bytesOf(m_type->currentData().toString());
}

QString NewUnitDialog::name() const {
  return m_name->text().trimmed();
}

}  // namespace veldra::host::desktop
