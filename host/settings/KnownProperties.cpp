#include "host/settings/KnownProperties.h"

#include <algorithm>
#include <iterator>

#include "host/model/PathNames.h"
#include "host/model/TemplateForms.h"

namespace veldra::host {

namespace {

using enum PropertyKind;

constexpr KnownProperty Known[] = {
    // The tool, its archive and its provider.
    {"CMTool", Word},
    {"Archive", Place},
    {"ArchiveRoot", Place},
    {"ArchiveSelection", Word},
    {"Repository", Place},
    {"SupportTreeRepository", Word},
    {"ProjName", Place},
    {"AuxProjPath", Place},
    {"UseSCCtool", Word},
    {"UseHybridModeWhenPossible", Word},
    {"ProviderRegKey", Command},
    {"SccServerPath", Command},
    {"EnableSCCCancel", Word},
    {"RedirectOutputToVeldra", Word},
    {"QuerySCCStatusOneByOne", Word},
    {"UnrollLoops", Word},
    {"AddNewUnitsToArchiveDuringCheckin", Word},
    {"IgnoreUndoCheckoutForNotCheckedoutUnits", Word},
    {"VaulrixSCCName", Word},

    // Command templates of the operations.
    {"CreateArchive", Command},
    {"ConnectToCMRepository", Command},
    {"PostConnectToCMRepository", Command},
    {"AddMember", Command},
    {"AddMember_ControlledFile", Command},
    {"AddMember_WithoutCheckOutCheckInDirectory", Command},
    {"CheckIn", Command},
    {"CheckOut", Command},
    {"CheckOutFromArchive", Command},
    {"Fetch", Command},
    {"FetchFromArchive", Command},
    {"ListArchive", Command},
    {"WorkspaceVersions", Command},
    {"Lock", Command},
    {"UnLock", Command},
    {"History", Command},
    {"Delete", Command},
    {"DeleteDirectory", Command},
    {"Rename", Command},
    {"RenameDirectory", Command},
    {"MoveDirectory", Command},
    {"Label", Command},
    {"VersionCommand", Command},
    {"RunCMToolCommand", Command},
    {"CustomButtonCmd", Command},
    {"CustomButtonImg", Command},
    {"UserDefCommand_1", Command},
    {"UserDefCommand_2", Command},
    {"UserDefCommand_3", Command},
    {"UserDefCommand_4", Command},

    // What keywords stand for when the caller gives no value.
    {"label", Command},
    {"log", Command},
    {"logFile", Command},
    {"mode", Command},
    {"ReadOnly", Command},
    {"ReadWrite", Command},
    {"UnitPath", Command},
    {"UnitDirPath", Command},
    {"UnitDirectory", Command},
    {"UnitArchivePath", Command},
    {"UnitArchiveDir", Command},

    // Reading what a tool prints.
    {"HeaderInfoItsRepositoryPath", Extraction},
    {"MultiRecordDelimiter", Pattern},
    {"ListArchiveIsXml", Word},
    {"ListArchiveStartsOver", Extraction},
    {"ListArchiveItsWorkingFile", Extraction},
    {"ListArchiveItsVersion", Extraction},
    {"ListArchiveItsMode", Extraction},
    {"ListArchiveItsLocker", Extraction},
    {"CMHeaderFile", Command},
    {"CMHeaderItsVersion", Extraction},
    {"CMHeaderItsLocker", Extraction},
    {"Header", Command},
    {"VersionPattern", Extraction},
    {"OperationErrorPattern", Pattern},
    {"OperationWarningPattern", Pattern},
    {"FailureToolMissing", Pattern},
    {"FailureDiskFull", Pattern},
    {"FailureFileName", Pattern},
    {"FailureAuthentication", Pattern},
    {"FailureUnreachable", Pattern},
    {"FailureNotConnected", Pattern},
    {"FailureInterrupted", Pattern},
    {"FailureLocked", Pattern},
    {"FailureNotCheckedOut", Pattern},
    {"FailureConflict", Pattern},
    {"FailureOutOfDate", Pattern},
    {"FailureNoSuchRevision", Pattern},
    {"FailureNotInArchive", Pattern},
    {"FailureNoUserName", Pattern},
    {"FailurePermission", Pattern},

    // How the module behaves.
    {"AllowCMOperationsOnStubUnits", Word},
    {"AllowCMOperationsOnReferenceUnits", Word},
    {"CMClearWindowBeforeOperation", Word},
    {"ReportLoadingError", Word},
    {"EncloseCommentsInQuotes", Word},
    {"AskOnCheckoutReadWrite", Word},
    {"SaveOnCheckOut", Word},
    {"ShowAllFilesInArchive", Word},
    {"IgnoreArchiveItemsWithoutDot", Word},
    {"RefreshCMStatusAtProjectOpenup", Word},
    {"CheckOutCheckInDirectoryOnceDuringAddToArchive", Word},
    {"ChildThreadTimeOut", Word},
    {"AddArchiveWithSubUnits", Word},
    {"DefaultLockReserveOnCheckOut", Word},
    {"EnableCheckoutBranch", Word},
    {"EnableRespectSynchronizedCM", Word},
    {"FetchStubSubUnitsSeparately", Word},
    {"FetchWithDesc", Word},
    {"ShowStubUnitMode", Word},
    {"AskOnLoadFromArchive", Word},
    {"EnableFetchFromArchive", Word},
    {"Synchronize_Method", Word},
    {"ShowNewItemsInSynchronize", Word},
    {"FilterUnresolvedUnitsInCMSynchDialog", Word},
    {"CallCheckOutOnSynchronize", Word},
    {"CloseDialogOnSynchronize", Word},
    {"UseUnitTimeStamps", Word},
    {"CommentsRequiredForCheckIn", Word},
    {"AlwaysEnableWithDescendentsOption", Word},
    {"UseSCCCommandTitles", Word},

    // Texts for people.
    {"CMOperationStartSeparator", Text},
    {"CMOperationEndSeparator", Text},
    {"InValidCharactersInRevisionDescription", Text},
    {"LockPolicy", Text},
    {"UserDefCommand_1_Title", Text},
    {"UserDefCommand_2_Title", Text},
    {"UserDefCommand_3_Title", Text},
    {"UserDefCommand_4_Title", Text},
};

constexpr std::string_view Arguments[] = {
    "archive",
    "archivedirectory",
    "label",
    "log",
    "logFile",
    "mode",
    "targetDir",
    "workspace",
    "Unit",
    "UnitDirectory",
    "UnitPath",
    "UnitDirPath",
    "UnitArchivePath",
    "UnitArchiveDir",
    "unitList",
    "oldName",
    "newName",
    "olddir",
    "newdir",
    "shouldSuppressSCCOKMessage",
    // Predefined, and those that a listing or a connection fills in.
    "OMROOT",
    "projectname",
    "vdrdirectory",
    "currentdirectory",
    "temp",
    "projectunitdirname",
    "ArchivePath",
    "SubDirs",
    "FileName",
};

const KnownProperty* propertyNamed(std::string_view name) {
  const auto* const at = std::ranges::find(Known, name, &KnownProperty::name);
  return at != std::end(Known) ? at : nullptr;
}

}  // namespace

std::span<const KnownProperty> knownProperties() {
  return Known;
}

const KnownProperty* knownProperty(std::string_view name) {
  if (const KnownProperty* const known = propertyNamed(name)) return known;
  const std::optional<std::string_view> ordinary = templateOfForm(name);
  const KnownProperty* const known = ordinary ? propertyNamed(*ordinary) : nullptr;
  return known != nullptr && known->kind == Command ? known : nullptr;
}

std::span<const std::string_view> argumentKeywords() {
  return Arguments;
}

bool isArgumentKeyword(std::string_view name) {
  const std::string wanted = lowerCase(name);
  return std::ranges::any_of(Arguments,
                             [&](std::string_view known) { return lowerCase(known) == wanted; });
}

}  // namespace veldra::host
