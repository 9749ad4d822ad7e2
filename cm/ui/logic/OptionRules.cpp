#include "cm/ui/logic/OptionRules.h"

#include <algorithm>
#include <iterator>

#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/InformationFiles.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/ViewState.h"

namespace veldra {

namespace {

bool takesComment(DialogCommand command) {
  switch (command) {
    case DialogCommand::CheckOut:
      return CMProperty::isSetSCC_CAP_COMMENTCHECKOUT(0) != 0;
    case DialogCommand::Fetch:
    case DialogCommand::UndoCheckOut:
      return false;
    default:
      return true;
  }
}

std::string forbiddenCharacters() {
  std::string characters;
  CMProperty::getToolPropertyValue("InValidCharactersInRevisionDescription", characters);
  return std::string(trimmed(characters));
}

/// Whether a command of a provider is told the mode.
bool takesMode(DialogCommand command) {
  return command == DialogCommand::CheckOut || command == DialogCommand::CheckIn;
}

/// The commands that have a longer name, in the order of these texts.
constexpr DialogCommand Titled[] = {DialogCommand::Fetch, DialogCommand::CheckOut,
                                    DialogCommand::UndoCheckOut, DialogCommand::CheckIn,
                                    DialogCommand::AddToArchive};

}  // namespace

bool OptionRules::offersDescendants(bool foundDescendants) {
  std::string always;
  omGetEnvVar("General", "AlwaysEnableWithDescendentsOption", always, "");
  return foundDescendants || !equalsNoCase(always, "false");
}

bool OptionRules::addsSubUnits() {
  return CMProperty::getProjectBool(IPN::General, "AddArchiveWithSubUnits", false);
}

OptionPresets OptionRules::presets(const CommandRow& row, const UnitList& units) {
  const BackEndMode mode = BackEndMode::current();
  OptionPresets presets;
  presets.command = row.command;
  presets.window = mode.usesProvider ? row.provider.window : row.tool.window;
  for (const IUnit* unit : units) presets.unitNames.push_back(unit->getName());
  presets.comment = ViewState::unusedComment(row.command);
  presets.offersInformationFiles = row.takesInformationFiles && InformationFiles::areOffered();
  presets.withInformationFiles =
      presets.offersInformationFiles &&
      InformationFiles::shouldSetInformationFilesCheckBoxForUnitsList2(units);
  const bool isAdd = row.command == DialogCommand::AddToArchive;
  presets.offersDescendants =
      (!isAdd || addsSubUnits()) && offersDescendants(CheckForDescendentsInSelectedItems(units));
  if (presets.window == OptionWindow::Provider) {
    presets.takesComment = takesComment(row.command);
    presets.takesMode = takesMode(row.command);
  }
  if (row.command == DialogCommand::CheckOut) {
    // Who checks out wants to write, unless the settings say otherwise.
    presets.mode = CMProperty::getProjectBool(IPN::General, "DefaultLockReserveOnCheckOut", true);
    presets.saysReserved = mode.isBranchTool;
  }
  if (presets.window == OptionWindow::CheckIn) presets.takesMode = !mode.isBranchTool && !isAdd;
  return presets;
}

std::string OptionRules::commentObjection(DialogCommand command, const std::string& comment) {
  const BackEndMode mode = BackEndMode::current();
  if (mode.usesProvider) {
    const bool isMissing =
        command == DialogCommand::CheckIn && comment.empty() &&
        CMProperty::getProjectBool(IPN::SCC, "CommentsRequiredForCheckIn", false);
    return isMissing ? loadMessage(MessageId::CommentRequired) : std::string();
  }
  const std::string forbidden = mode.isNoTool ? std::string() : forbiddenCharacters();
  if (comment.find_first_of(forbidden) == std::string::npos) return {};
  return formatMessage(MessageId::ForbiddenCharacters, {forbidden});
}

std::string OptionRules::objection(const OptionPresets& presets, const CommandOptions& options) {
  if (presets.window == OptionWindow::CheckIn || presets.window == OptionWindow::Provider) {
    return commentObjection(presets.command, options.comment);
  }
  if (presets.window == OptionWindow::Connect && trimmed(options.archive).empty()) {
    return loadMessage(MessageId::ConnectWithoutArchive);
  }
  return {};
}

CallArguments OptionRules::arguments(const CommandRow& row, const CommandOptions& options) {
  const bool writes = row.command == DialogCommand::Lock || options.mode;
  const bool hasComment = (row.parts & CallPart::Comment) != 0;
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  return callArguments(
      {.parts = row.parts | CallPart::Workspace | (hasComment ? CallPart::CommentFile : 0),
       .mode = writes ? CMMode::ReadWrite : CMMode::ReadOnly,
       .label = options.label,
       .comment = options.comment,
       .projectDirectory = project != nullptr ? project->getProjectDirectory() : std::string()});
}

std::string OptionRules::commandTitle(DialogCommand command) {
  const auto found = std::find(std::begin(Titled), std::end(Titled), command);
  if (found == std::end(Titled)) return ButtonRules::caption(command);
  return loadMessage(MessageId::OptionTitleOfCommand +
                     static_cast<int>(std::distance(std::begin(Titled), found)));
}

std::string OptionRules::title(const OptionPresets& presets) {
  const IProperty* const named = CMProperty::getToolProperty("UseSCCCommandTitles");
  const bool namesCommand =
      presets.window != OptionWindow::Provider || (named != nullptr && named->getBool());
  // Lock and unlock share a window, and so do check-in and add.
  return namesCommand ? commandTitle(presets.command) : loadMessage(MessageId::OptionTitle);
}

}  // namespace veldra
