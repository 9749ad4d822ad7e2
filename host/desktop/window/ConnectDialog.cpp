#include "host/desktop/window/ConnectDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "cm/ui/widgets/Control.h"
#include "host/desktop/window/ArchiveChoice.h"

namespace veldra::host::desktop {

ConnectDialog::ConnectDialog(const PropertyLayers& layers, const std::string& tool,
                             const QString& archive, QWidget* parent)
    : QDialog(parent), m_choice(new ArchiveChoice(layers, this)) {
  setWindowTitle(tr("Connect to Archive"));
  setMinimumWidth(560);
  auto* form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  m_choice->addRows(*form);
  if (!tool.empty()) m_choice->preset(tool, archive);
  auto* hint =
      new QLabel(tr("The archive keeps every revision of every unit. Units get into it "
                    "when you add them."));
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  form->addRow(QString(), hint);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setText(tr("C&onnect"));
  describeButtons(*buttons);
  const auto update = [this, ok] { ok->setEnabled(!m_choice->archive().isEmpty()); };
  connect(m_choice, &ArchiveChoice::changed, ok, update);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  update();
}

}  // namespace veldra::host::desktop
