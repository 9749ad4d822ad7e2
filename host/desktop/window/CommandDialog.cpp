#include "host/desktop/window/CommandDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/desktop/Text.h"
#include "host/desktop/window/CommandTexts.h"

namespace veldra::host::desktop {
namespace {

constexpr qsizetype MostNames = 4;

QString unitsText(const QStringList& units) {
  QString text = units.mid(0, MostNames).join(", ");
  if (units.size() > MostNames) {
    text += CommandDialog::tr(" and %n more", nullptr, static_cast<int>(units.size() - MostNames));
  }
  return text;
}

}  // namespace

CommandDialog::CommandDialog(const WindowCommand& row, const QStringList& units,
                             bool hasDescendants, const QString& comment, QWidget* parent)
    : QDialog(parent),
      m_comment(new QPlainTextEdit(comment, this)),
      m_label(new QLineEdit(this)),
      m_descendants(new QCheckBox(tr("With everything &below"), this)) {
  setWindowTitle(commandName(row));
  setMinimumWidth(440);
  auto* what = new QLabel(unitsText(units));
  what->setTextFormat(Qt::PlainText);
  what->setWordWrap(true);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("Units:"), what);
  if (row.asksComment) {
    m_comment->setTabChangesFocus(true);
    m_comment->setPlaceholderText(tr("What you changed, and why"));
    m_comment->setFixedHeight(fontMetrics().lineSpacing() * 5 + 12);
    form->addRow(tr("&Comment:"), m_comment);
  }
  if (row.asksLabel) form->addRow(tr("&Label:"), m_label);
  if (row.offersDescendants && hasDescendants) form->addRow(QString(), m_descendants);
  m_descendants->setObjectName("Descendants");
  m_comment->setVisible(row.asksComment);
  m_label->setVisible(row.asksLabel);
  m_descendants->setVisible(row.offersDescendants && hasDescendants);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setText(commandName(row));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(buttons);
}

CommandOptions CommandDialog::choice() const {
  CommandOptions options;
  options.comment = bytesOf(m_comment->toPlainText());
  options.label = bytesOf(m_label->text());
  options.withDescendants = m_descendants->isChecked();
  return options;
}

}  // namespace veldra::host::desktop
