#include "cm/ui/options/CCMFetchSelection.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "cm/host/MessageIds.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMFetchSelection::CCMFetchSelection(QWidget* parent) : QDialog(parent) {
  const QString question = hostText(MessageId::FetchSelectionQuestion);
  setWindowTitle(shown(ButtonRules::caption(DialogCommand::Fetch)));
  control(this, ControlId::FetchSelectionDialog, windowTitle(), question);
  auto* const layout = new QVBoxLayout(this);
  auto* const prompt =
      control(new QLabel(question, this), ControlId::FetchSelectionPrompt, question);
  prompt->setTextFormat(Qt::PlainText);
  prompt->setWordWrap(true);
  layout->addWidget(prompt);
  addChoice(ControlId::FetchSelectionCheckOut, shown(ButtonRules::caption(DialogCommand::CheckOut)),
            Choice::CheckOut);
  addChoice(ControlId::FetchSelectionFetch, shown(ButtonRules::caption(DialogCommand::Fetch)),
            Choice::Fetch);
  setMinimumWidth(360);
}

void CCMFetchSelection::addChoice(int id, const QString& caption, Choice choice) {
  auto* const button = control(new QPushButton(caption, this), id, caption);
  connect(button, &QPushButton::clicked, this, [this, choice] {
    m_choice = choice;
    accept();
  });
  layout()->addWidget(button);
}

}  // namespace veldra
