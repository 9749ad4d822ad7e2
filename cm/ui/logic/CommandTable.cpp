#include "cm/ui/logic/CommandTable.h"

#include <algorithm>
#include <array>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/ui/ControlIds.h"

namespace veldra {

namespace {

constexpr RecursiveVariant RecursiveCheckOut{
    "Starting Recursive Check Out", "Recursive Check Out completed",
    "Starting ATM after Recursive Check Out", "Completed ATM after Recursive Check Out"};
constexpr RecursiveVariant RecursiveCheckIn{"Starting Recursive Check In",
                                            "Recursive Check In completed"};
constexpr RecursiveVariant RecursiveUndo{
    "Starting Recursive Undo Check Out", "Recursive Undo Check Out completed",
    "Starting ATM after Recursive Undo Check Out", "Completed ATM after Recursive Undo Check Out"};
constexpr RecursiveVariant RecursiveFetch{"Starting Recursive Fetch", "Recursive Fetch completed",
                                          "Starting ATM after Recursive Fetch",
                                          "Completed ATM after Recursive Fetch"};

constexpr unsigned ModeLabelComment = CallPart::Mode | CallPart::Label | CallPart::Comment;

const std::array<CommandRow, 10>& rows() {
  using enum DialogCommand;
  using enum SelectionRule;
  using Window = OptionWindow;
  static const std::array<CommandRow, 10> table{{
      {.command = Connect,
       .controlId = ControlId::Connect,
       .starting = "Starting Connect to Archive",
       .tool = {Any, Window::Connect, "Connect to Archive completed"},
       .provider = {Any, Window::None, "Connect to Archive completed"},
       .call = &CMFacade::ConnectToArchive,
       .templateProperty = IPN::CMConnectToCMRepository,
       .needsCompliance = true},
      {.command = Fetch,
       .controlId = ControlId::Fetch,
       .starting = "Starting Fetch",
       .tool = {AtLeastOne, Window::Provider, "Fetch completed"},
       .provider = {AtLeastOne, Window::Provider, "Fetch completed"},
       .call = &CMFacade::Fetch,
       .templateProperty = IPN::CMFetch,
       .parts = CallPart::Mode | CallPart::Label,
       .changesModel = true,
       .recursive = &RecursiveFetch,
       .recursiveCall = &CMFacade::Fetch},
      {.command = CheckOut,
       .controlId = ControlId::CheckOut,
       .starting = "Starting Check Out",
       .tool = {AtLeastOne, Window::CheckOut, "Check Out completed"},
       .provider = {AtLeastOne, Window::Provider, "Check Out completed"},
       .call = &CMFacade::CheckOut,
       .templateProperty = IPN::CMCheckOut,
       .parts = ModeLabelComment,
       .changesModel = true,
       .takesInformationFiles = true,
       .recursive = &RecursiveCheckOut,
       .recursiveCall = &CMFacade::RecCheckOut},
      {.command = UndoCheckOut,
       .controlId = ControlId::UndoCheckOut,
       .starting = "Starting Undo Check Out",
       .tool = {AtLeastOne, Window::Question, "Undo Check Out completed"},
       .provider = {OnlyOne, Window::Provider, "Undo Check Out completed"},
       .call = &CMFacade::Uncheckout,
       .templateProperty = IPN::CMUnLockItem,
       .parts = CallPart::Mode,
       .changesModel = true,
       .takesInformationFiles = true,
       .recursive = &RecursiveUndo,
       .recursiveCall = &CMFacade::RecUncheckout},
      {.command = CheckIn,
       .controlId = ControlId::CheckIn,
       .starting = "Starting Check In",
       .tool = {AtLeastOne, Window::CheckIn, "Check In completed"},
       .provider = {AtLeastOne, Window::Provider, "Check In completed"},
       .call = &CMFacade::CheckIn,
       .templateProperty = IPN::CMCheckIn,
       .parts = ModeLabelComment,
       .changesModel = true,
       .takesInformationFiles = true,
       .recursive = &RecursiveCheckIn,
       .recursiveCall = &CMFacade::RecCheckIn},
      {.command = AddToArchive,
       .controlId = ControlId::AddToArchive,
       .starting = "Starting Add to Archive",
       .tool = {AtLeastOne, Window::CheckIn, "Add to Archive completed"},
       .provider = {AtLeastOne, Window::Provider, "Add to Archive completed"},
       .call = &CMFacade::AddMember,
       .templateProperty = IPN::CMAddMember,
       .parts = CallPart::Mode | CallPart::Comment,
       .changesModel = true,
       .needsCompliance = true,
       .takesInformationFiles = true},
      {.command = Lock,
       .controlId = ControlId::Lock,
       .starting = "Starting Lock",
       .tool = {AtLeastOne, Window::Lock, "Lock completed"},
       .provider = {AtLeastOne, Window::Lock, "Lock completed"},
       .call = &CMFacade::LockItem,
       .templateProperty = IPN::CMLockItem,
       .parts = CallPart::Mode | CallPart::Label,
       .changesModel = true,
       .takesInformationFiles = true},
      {.command = Unlock,
       .controlId = ControlId::Unlock,
       .starting = "Starting Unlock",
       .tool = {AtLeastOne, Window::Lock, "Unlock completed"},
       .provider = {AtLeastOne, Window::Lock, "Unlock completed"},
       .call = &CMFacade::UnLockItem,
       .templateProperty = IPN::CMUnLockItem,
       .parts = CallPart::Mode | CallPart::Label,
       .changesModel = true,
       .takesInformationFiles = true},
      {.command = History,
       .controlId = ControlId::History,
       .starting = "Starting History",
       // With a tool it closes with the words of the refresh; readers of the log know it that way.
       .tool = {AtLeastOne, Window::None, "Refresh CM State completed"},
       .provider = {OneAndOnlyOne, Window::None, "History completed"},
       .call = &CMFacade::History,
       .templateProperty = "History"},
      {.command = Properties,
       .controlId = ControlId::Properties,
       .starting = "",
       .tool = {OnlyOne, Window::None, ""},
       .provider = {OnlyOne, Window::None, ""},
       .call = &CMFacade::Properties},
  }};
  return table;
}

}  // namespace

std::span<const CommandRow> commandTable() {
  return rows();
}

const CommandRow* commandRow(DialogCommand command) {
  const auto found = std::find_if(rows().begin(), rows().end(), [command](const CommandRow& row) {
    return row.command == command;
  });
  return found != rows().end() ? &*found : nullptr;
}

}  // namespace veldra
