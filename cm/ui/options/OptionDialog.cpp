#include "cm/ui/options/OptionDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "cm/ui/Translations.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

OptionDialog::OptionDialog(int dialogId, OptionPresets presets, QWidget* parent)
    : QDialog(parent), m_presets(std::move(presets)), m_form(new QFormLayout) {
  loadDialogTranslationsOnce();
  setWindowTitle(shown(OptionRules::title(m_presets)));
  control(this, dialogId, windowTitle());
  m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(m_buttons, &QDialogButtonBox::accepted, this, &OptionDialog::accept);
  connect(m_buttons, &QDialogButtonBox::rejected, this, &OptionDialog::reject);
  describeButtons(*m_buttons);
  setAcceptText(shown(OptionRules::commandTitle(m_presets.command)));
  m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  m_form->setRowWrapPolicy(QFormLayout::WrapAllRows);
  m_form->setVerticalSpacing(8);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 14);
  layout->setSpacing(14);
  layout->addLayout(m_form, 1);
  layout->addWidget(m_buttons);
  setMinimumWidth(460);
  addUnits();
}

void OptionDialog::addUnits() {
  constexpr std::size_t MostNames = 4;
  const std::vector<std::string>& names = m_presets.unitNames;
  if (names.empty()) return;
  QStringList some;
  for (std::size_t i = 0; i < std::min(MostNames, names.size()); ++i) {
    // A name as long as a book hides nothing but itself.
    some << fontMetrics().elidedText(shown(names[i]), Qt::ElideMiddle, 300);
  }
  QString text = some.join(QStringLiteral(", "));
  const int more = static_cast<int>(names.size()) - static_cast<int>(some.size());
  if (more > 0) text = tr("%1 and %n more", nullptr, more).arg(text);
  auto* const label = new QLabel(text, this);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  m_form->addRow(tr("Units:"), label);
}

void OptionDialog::accept() {
  const std::string message = objection();
  if (message.empty()) {
    QDialog::accept();
  } else {
    dialogWarning(message);
  }
}

std::string OptionDialog::objection() const {
  return OptionRules::objection(m_presets, options());
}

QPlainTextEdit* OptionDialog::addComment(int id) {
  auto* const edit = control(new QPlainTextEdit(this), id, tr("Comment"),
                             tr("What was changed, and why. It is kept in the archive."));
  edit->setPlainText(QString::fromStdString(m_presets.comment));
  edit->selectAll();
  edit->setTabChangesFocus(true);
  edit->setEnabled(m_presets.takesComment);
  edit->setPlaceholderText(m_presets.takesComment ? tr("What was changed, and why")
                                                  : tr("The archive takes no comment here"));
  edit->setMinimumHeight(96);
  m_form->addRow(tr("&Comment:"), edit);
  return edit;
}

QLineEdit* OptionDialog::addLine(int id, const QString& label, const QString& text) {
  QString name = label;
  auto* const edit = control(new QLineEdit(text, this), id,
                             name.remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  m_form->addRow(label, edit);
  return edit;
}

QCheckBox* OptionDialog::addBox(int id, const QString& label, bool isSet, bool isEnabled) {
  QString name = label;
  auto* const box = control(new QCheckBox(label, this), id, name.remove(QLatin1Char('&')));
  box->setChecked(isSet && isEnabled);
  box->setEnabled(isEnabled);
  m_form->addRow(box);
  return box;
}

QCheckBox* OptionDialog::addDescendants(int id) {
  return addBox(id, tr("With all units &below"), m_presets.withDescendants,
                m_presets.offersDescendants);
}

QCheckBox* OptionDialog::addInformationFiles(int id) {
  auto* const box = addBox(id, tr("Include &information files"), m_presets.withInformationFiles);
  box->setVisible(m_presets.offersInformationFiles);
  return box;
}

void OptionDialog::setAcceptText(const QString& text) {
  m_buttons->button(QDialogButtonBox::Ok)->setText(text);
}

}  // namespace veldra
