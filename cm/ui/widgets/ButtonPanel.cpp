#include "cm/ui/widgets/ButtonPanel.h"

#include <algorithm>

#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/widgets/Control.h"

namespace veldra {

namespace {

QWidget* placeholder(QWidget* panel, int id) {
  auto* const place = control(new QWidget(panel), id, {});
  place->hide();
  return place;
}

}  // namespace

ButtonPanel::ButtonPanel(QWidget* parent)
    : QWidget(parent),
      m_firstPlace(placeholder(this, ControlId::FirstRowPlace)),
      m_secondPlace(placeholder(this, ControlId::SecondRowPlace)) {
  for (const ButtonRow& row : buttonTable()) {
    auto* const button = new CommandButton(ButtonRules::face(row), this);
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { Q_EMIT pressed(button->command()); });
    m_buttons.push_back(button);
  }
  refresh();
}

CommandButton* ButtonPanel::button(DialogCommand command) const {
  return m_buttons.at(static_cast<std::size_t>(command));
}

int ButtonPanel::placeLine(int line, const ButtonPlaces& places) {
  std::vector<CommandButton*> shown;
  std::vector<int> widths;
  for (CommandButton* button : m_buttons) {
    const bool isHere = buttonTable()[static_cast<std::size_t>(button->command())].line == line;
    if (!isHere || button->isHidden()) continue;
    shown.push_back(button);
    widths.push_back(button->sizeHint().width());
  }
  const std::vector<Place> corners = places.ofLine(line, widths);
  int right = 0;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    shown[i]->setGeometry(corners[i].x, corners[i].y, widths[i], shown[i]->sizeHint().height());
    right = corners[i].x + widths[i];
  }
  return right;
}

void ButtonPanel::refresh() {
  for (CommandButton* button : m_buttons) {
    button->show(ButtonRules::face(buttonTable()[static_cast<std::size_t>(button->command())]));
  }
  const int height = m_buttons.front()->sizeHint().height();
  const Place first{0, 0};
  const Place second{0, height + 4};
  m_firstPlace->move(first.x, first.y);
  m_secondPlace->move(second.x, second.y);
  const ButtonPlaces places(&first, &second, height);
  const int right = std::max(placeLine(1, places), placeLine(2, places));
  setMinimumWidth(right);
  setFixedHeight(places.secondLine.y + height);
  setCommandsEnabled(true);
}

void ButtonPanel::setCommandsEnabled(bool enabled) {
  for (CommandButton* button : m_buttons) {
    const bool isCurrentView = button->command() == (ViewState::isFlat() ? DialogCommand::FlatView
                                                                         : DialogCommand::TreeView);
    const bool isBranch = button->command() == DialogCommand::CheckOutBranch;
    const bool isMissing = std::find(m_unavailable.begin(), m_unavailable.end(),
                                     button->command()) != m_unavailable.end();
    const bool isHiddenBranch = isBranch && button->isHidden();
    button->setEnabled(enabled && !isCurrentView && !isMissing && !isHiddenBranch);
  }
}

void ButtonPanel::setAvailable(DialogCommand command, bool available) {
  std::erase(m_unavailable, command);
  if (!available) m_unavailable.push_back(command);
  setCommandsEnabled(true);
}

}  // namespace veldra
