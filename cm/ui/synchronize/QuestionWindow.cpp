#include "cm/ui/synchronize/QuestionWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "cm/ui/ControlIds.h"
#include "cm/ui/Translations.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

QuestionWindow::QuestionWindow(const std::string& text, const std::string& unitName,
                               QWidget* parent)
    : QDialog(parent) {
  loadDialogTranslationsOnce();
  setWindowTitle(QCoreApplication::applicationName());
  auto* const question =
      control(new QLabel(shown(text), this), ControlId::QuestionText, tr("Question"), shown(text));
  question->setTextFormat(Qt::PlainText);
  question->setWordWrap(true);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 14);
  layout->setSpacing(14);
  layout->addWidget(question);
  if (!unitName.empty()) {
    auto* const unit =
        control(new QLineEdit(shown(unitName), this), ControlId::QuestionUnit, tr("Unit"));
    unit->setReadOnly(true);
    layout->addWidget(unit);
  }
  struct Row {
    int id;
    QString caption;
    const char* answer;
  };
  const Row rows[] = {{ControlId::QuestionYes, tr("&Yes"), "yes"},
                      {ControlId::QuestionYesToAll, tr("Yes to &All"), "yestoall"},
                      {ControlId::QuestionNo, tr("&No"), "no"},
                      {ControlId::QuestionNoToAll, tr("N&o to All"), "notoall"},
                      {ControlId::QuestionCancel, tr("&Cancel"), "cancel"}};
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  for (const Row& row : rows) {
    auto* const button = control(new QPushButton(row.caption, this), row.id, row.caption);
    connect(button, &QPushButton::clicked, this, [this, answer = row.answer] {
      m_answer = answer;
      accept();
    });
    buttons->addWidget(button);
    // What changes nothing is a key away; what overwrites has to be chosen.
    if (row.id == ControlId::QuestionNo) button->setDefault(true);
  }
  layout->addLayout(buttons);
  setMinimumWidth(460);
  findControl<QPushButton>(*this, ControlId::QuestionNo)->setFocus();
}

std::string QuestionWindow::ask(const std::string& text, const std::string& unitName,
                                QWidget* parent) {
  QuestionWindow window(text, unitName, parent != nullptr ? parent : QApplication::activeWindow());
  window.exec();
  return window.answer();
}

}  // namespace veldra
