#include "cm/ui/logic/ButtonRules.h"

#include <array>

#include "cm/core/TextTools.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/BackEndMode.h"

namespace veldra {

namespace {

const std::array<ButtonRow, 22>& buttons() {
  using enum DialogCommand;
  static constexpr std::array<ButtonRow, 22> table{{
      {Connect, ControlId::Connect, 1, "Ctrl+K"},
      {ListArchive, ControlId::ListArchive, 1, "Ctrl+L"},
      {Compare, ControlId::Compare, 1, "Ctrl+D"},
      {Synchronize, ControlId::Synchronize, 1, "Ctrl+Y"},
      {RefreshStatus, ControlId::RefreshStatus, 1, "F5"},
      {RunTool, ControlId::RunTool, 1, "Ctrl+R"},
      {CheckOutBranch, ControlId::CheckOutBranch, 1, "Ctrl+B"},
      {Fetch, ControlId::Fetch, 2, "Ctrl+E"},
      {CheckOut, ControlId::CheckOut, 2, "Ctrl+O"},
      {UndoCheckOut, ControlId::UndoCheckOut, 2, "Ctrl+U"},
      {CheckIn, ControlId::CheckIn, 2, "Ctrl+I"},
      {AddToArchive, ControlId::AddToArchive, 2, "Ctrl+N"},
      {Lock, ControlId::Lock, 2, "Ctrl+Shift+L"},
      {Unlock, ControlId::Unlock, 2, "Ctrl+Shift+U"},
      {History, ControlId::History, 2, "Ctrl+H"},
      {Properties, ControlId::Properties, 2, "Ctrl+P"},
      {UserCommand1, ControlId::UserCommand1, 2, "Ctrl+1"},
      {UserCommand2, ControlId::UserCommand2, 2, "Ctrl+2"},
      {UserCommand3, ControlId::UserCommand3, 2, "Ctrl+3"},
      {UserCommand4, ControlId::UserCommand4, 2, "Ctrl+4"},
      {FlatView, ControlId::FlatView, 2, "Ctrl+Shift+F"},
      {TreeView, ControlId::TreeView, 2, "Ctrl+Shift+T"},
  }};
  return table;
}

bool isUserCommand(DialogCommand command) {
  return command >= DialogCommand::UserCommand1 && command <= DialogCommand::UserCommand4;
}

std::string projectText(const std::string& name) {
  const IProperty* const property = CMProperty::getProjectProperty(IPN::General, name);
  return property != nullptr ? property->getValue() : std::string();
}

std::string userCommandTitle(DialogCommand command) {
  const int number = static_cast<int>(command) - static_cast<int>(DialogCommand::UserCommand1) + 1;
  return std::string(trimmed(projectText("UserDefCommand_" + std::to_string(number) + "_Title")));
}

}  // namespace

std::span<const ButtonRow> buttonTable() {
  return buttons();
}

bool ButtonRules::isShown(DialogCommand command) {
  const BackEndMode mode = BackEndMode::current();
  switch (command) {
    case DialogCommand::RefreshStatus:
      return showsProviderStatus();
    case DialogCommand::CheckOutBranch: {
      const IProperty* const enabled = CMProperty::getToolProperty("EnableCheckoutBranch");
      return enabled != nullptr && enabled->getBool();
    }
    case DialogCommand::Fetch:
    case DialogCommand::Properties:
      return mode.usesProvider;
    case DialogCommand::UndoCheckOut:
    case DialogCommand::History:
      return mode.usesProvider || mode.isBranchTool;
    case DialogCommand::Lock:
    case DialogCommand::Unlock:
      return !mode.usesProvider && !mode.isBranchTool;
    default:
      return true;
  }
}

std::string ButtonRules::caption(DialogCommand command) {
  const std::string title = isUserCommand(command) ? userCommandTitle(command) : std::string();
  return title.empty() ? loadMessage(MessageId::CommandCaption + static_cast<int>(command)) : title;
}

std::string ButtonRules::tooltip(DialogCommand command) {
  const std::string title = isUserCommand(command) ? userCommandTitle(command) : std::string();
  if (!title.empty()) return title;
  if (command == DialogCommand::RunTool && projectText("RunCMToolCommand").empty()) {
    return loadMessage(MessageId::RunToolUnsetTooltip);
  }
  if (command == DialogCommand::History && CMProperty::getUseSCCtool() == 0) {
    return loadMessage(MessageId::ToolHistoryTooltip);
  }
  return loadMessage(MessageId::CommandTooltip + static_cast<int>(command));
}

ButtonFace ButtonRules::face(const ButtonRow& row) {
  return {row.controlId,        row.command,  caption(row.command),
          tooltip(row.command), row.shortcut, isShown(row.command)};
}

ButtonPlaces::ButtonPlaces(const Place* first, const Place* second, int height)
    : firstLine(first != nullptr ? *first : Fallback) {
  firstLine.y += 3;
  secondLine = second != nullptr ? Place{second->x, second->y + 3}
                                 : Place{firstLine.x, firstLine.y + height + 25};
}

std::vector<Place> ButtonPlaces::ofLine(int line, std::span<const int> widths) const {
  std::vector<Place> places;
  Place next = line == 1 ? firstLine : secondLine;
  for (const int width : widths) {
    places.push_back(next);
    next.x += width + Gap;
  }
  return places;
}

}  // namespace veldra
