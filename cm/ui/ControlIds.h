#pragma once

/// Numbers by which hosts and tests find the controls of the dialogs. A widget bears its number as
/// its object name, as `controlName` writes it in `cm/ui/widgets/Control.h`.
namespace veldra::ControlId {

// --- main dialog ---
inline constexpr int UnitTree = 929;
inline constexpr int FlatList = 926;
inline constexpr int Connect = 910;
inline constexpr int ListArchive = 911;
inline constexpr int Compare = 920;
inline constexpr int Synchronize = 917;
inline constexpr int RefreshStatus = 963;
inline constexpr int RunTool = 943;
inline constexpr int CheckOutBranch = 923;
inline constexpr int Fetch = 912;
inline constexpr int CheckOut = 913;
inline constexpr int UndoCheckOut = 914;
inline constexpr int CheckIn = 915;
inline constexpr int AddToArchive = 916;
inline constexpr int Lock = 918;
inline constexpr int Unlock = 919;
inline constexpr int History = 921;
inline constexpr int Properties = 922;
inline constexpr int UserCommand1 = 931;
inline constexpr int UserCommand2 = 932;
inline constexpr int UserCommand3 = 933;
inline constexpr int UserCommand4 = 934;
inline constexpr int FlatView = 941;
inline constexpr int TreeView = 940;
inline constexpr int FirstRowPlace = 961;   ///< Where the first row of buttons begins.
inline constexpr int SecondRowPlace = 962;  ///< Where the second row of buttons begins.
// Beyond the published ones.
inline constexpr int Filter = 970;
inline constexpr int Totals = 971;
inline constexpr int EmptyState = 972;
inline constexpr int Progress = 973;
inline constexpr int Failures = 974;
inline constexpr int SelectFailed = 975;
inline constexpr int Close = 976;

// --- check-in options ---
inline constexpr int CheckInDialog = 205;
inline constexpr int CheckInComment = 201;
inline constexpr int CheckInMode = 202;
inline constexpr int CheckInLabel = 203;
inline constexpr int CheckInDescendants = 217;
inline constexpr int CheckInInformationFiles = 5319;

// --- check-out options ---
inline constexpr int CheckOutDialog = 925;
inline constexpr int CheckOutLabel = 924;
inline constexpr int CheckOutLock = 927;
inline constexpr int CheckOutDescendants = 928;
inline constexpr int CheckOutInformationFiles = 964;

// --- options of a provider's command ---
inline constexpr int ProviderDialog = 208;
inline constexpr int ProviderComment = 239;
inline constexpr int ProviderMode = 238;
inline constexpr int ProviderDescendants = 5317;
inline constexpr int ProviderInformationFiles = 5318;
inline constexpr int ProviderAdvanced = 40002;

// --- lock options ---
inline constexpr int LockDialog = 221;
inline constexpr int LockLabel = 213;
inline constexpr int LockDescendants = 222;
inline constexpr int LockInformationFiles = 965;

// --- archive to connect to ---
inline constexpr int ConnectDialog = 206;
inline constexpr int ConnectArchive = 214;
inline constexpr int ConnectBrowse = 215;

// --- versions to compare ---
inline constexpr int FetchDialog = 236;
inline constexpr int FetchLabel = 231;
inline constexpr int FetchDescendants = 923;
inline constexpr int DiffDialog = 237;
inline constexpr int DiffFirst = 234;
inline constexpr int DiffSecond = 233;
inline constexpr int DiffDescendants = 923;

// --- check out or fetch ---
inline constexpr int FetchSelectionDialog = 159;
inline constexpr int FetchSelectionPrompt = 42409;
inline constexpr int FetchSelectionCheckOut = 42410;
inline constexpr int FetchSelectionFetch = 42411;

// --- archive browser ---
inline constexpr int ArchiveList = 219;
inline constexpr int ArchiveCheckOut = 218;
inline constexpr int ArchiveFetch = 246;
inline constexpr int ArchiveCompareModel = 235;
inline constexpr int ArchiveCompareVersions = 220;
inline constexpr int ArchiveBranch = 236;

// --- synchronize dialog, and the questions of both; their numbers are free ---
inline constexpr int SyncList = 1000;
inline constexpr int SyncTakeOver = 1001;
inline constexpr int SyncRefresh = 1002;
inline constexpr int SyncMethod = 1003;
inline constexpr int SyncLabel = 1004;
inline constexpr int SyncExplanation = 1005;
inline constexpr int QuestionText = 1010;
inline constexpr int QuestionUnit = 1011;
inline constexpr int QuestionYes = 1012;
inline constexpr int QuestionYesToAll = 1013;
inline constexpr int QuestionNo = 1014;
inline constexpr int QuestionNoToAll = 1015;
inline constexpr int QuestionCancel = 1016;

// --- a unit's archive, and the branch check-out: their numbers are free ---
inline constexpr int UnitArchiveDialog = 980;
inline constexpr int UnitArchivePath = 981;
inline constexpr int UnitArchiveAssociate = 982;
inline constexpr int UnitArchiveAssociateNew = 983;
inline constexpr int UnitArchiveDisassociate = 984;
inline constexpr int UnitArchiveBrowseFile = 985;
inline constexpr int UnitArchiveBrowseFolder = 986;
inline constexpr int BranchDialog = 990;
inline constexpr int BranchName = 991;

}  // namespace veldra::ControlId

namespace veldra {

/// The number of the message that makes an open main dialog list the workspace anew: a window
/// message on Windows, elsewhere a posted event whose type is this number.
inline constexpr int RefreshMessage = 40001;

}  // namespace veldra
