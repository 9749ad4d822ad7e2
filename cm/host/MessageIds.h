#pragma once

/// The host texts that the module shows, by the numbers under which every host keeps them. The
/// values after each name fill the text's placeholders, in this order.
namespace veldra::MessageId {

inline constexpr int UnitOutsideWorkingDirectory =
    949;                                       ///< File, working dir, unit's dir, archive dir.
inline constexpr int AlreadyCheckedOut = 948;  ///< File.
inline constexpr int OverwriteQuestion = 953;  ///< File name, full file name.
inline constexpr int ErrorPatternMatched = 958;
inline constexpr int WarningPatternMatched = 959;
inline constexpr int CommandTimedOut = 962;
inline constexpr int NotControlled = 954;      ///< File.
inline constexpr int NotCheckedOut = 955;      ///< File.
inline constexpr int AddedOnCheckIn = 966;     ///< File.
inline constexpr int NotCheckedOutEnds = 967;  ///< File.
inline constexpr int NoArchive = 46547;
inline constexpr int NoCMToolSelected = 46554;
inline constexpr int RefreshQuestion = 46560;
inline constexpr int ProviderNotLocated = 46563;
inline constexpr int AssociateAnew = 46565;
inline constexpr int Associated = 46566;
inline constexpr int ConnectionBroken = 46567;
inline constexpr int FileNotLoaded = 47640;  ///< Full file name.
inline constexpr int CheckOutIncomplete = 48312;
inline constexpr int CheckedIn = 49982;
inline constexpr int ProviderQuestion = 50055;     ///< Text.
inline constexpr int DirectoryNotEntered = 48352;  ///< Directory, system error.

// The module's own texts.
inline constexpr int NotAvailable = 60001;          ///< Operation.
inline constexpr int StubUnitSkipped = 60002;       ///< Unit's name, its type.
inline constexpr int ReferenceUnitSkipped = 60003;  ///< Unit's name, its type.
inline constexpr int UnitsSkipped = 60004;
inline constexpr int ControlledFileNotice = 60005;  ///< File.
inline constexpr int UnsafeFileName = 60006;        ///< File, what it contains.
inline constexpr int PatternNotValid = 60007;       ///< Pattern, reason.
inline constexpr int PatternGivenUp = 60008;        ///< Pattern.
inline constexpr int CommentNotWritten = 60009;     ///< Directory.
inline constexpr int NoProcessRunner = 60010;       ///< Command.
inline constexpr int InternalError = 60011;         ///< Operation, what happened.
inline constexpr int NoMoveTarget = 60020;
inline constexpr int NoNewName = 60021;
inline constexpr int CopyNotKept = 60030;        ///< File, reason.
inline constexpr int ToolEndedSilently = 60810;  ///< Exit code.

// What a provider answers: prefixes, the texts of the codes -1 and 1 (the others lie below them in
// order), one for any other code, and what ends every message.
inline constexpr int ProviderErrorPrefix = 48318;
inline constexpr int ProviderInformationPrefix = 48319;
inline constexpr int ProviderError = 48321;
inline constexpr int ProviderUnknownCode = 48350;
inline constexpr int ProviderTrailer = 48351;
inline constexpr int ProviderInformation = 48358;

// Labels of a unit's CM state.
inline constexpr int StateDeleted = 49434;
inline constexpr int StateNotControlled = 49488;
inline constexpr int StateControlled = 49494;
inline constexpr int StateCheckedOut = 49762;
inline constexpr int StateOutOther = 49763;
inline constexpr int StateOutElsewhere = 49764;
inline constexpr int StateNotCheckedOut = 49765;

// The module's own texts about providers.
inline constexpr int ProviderFailed = 60201;     ///< Entry point, what happened.
inline constexpr int ProviderNotLoaded = 60202;  ///< Library, reason.
inline constexpr int ProviderLacks = 60203;      ///< Operation, entry point.
inline constexpr int ActivityQuestion = 60204;
inline constexpr int TaskQuestion = 60205;
inline constexpr int AddedToArchive = 60206;   ///< Number of files.
inline constexpr int TargetMissing = 60207;    ///< File.
inline constexpr int TargetExists = 60208;     ///< File.
inline constexpr int FileNotMoved = 60209;     ///< File.
inline constexpr int NowhereToMove = 60210;    ///< File.
inline constexpr int ChangedAndStale = 60211;  ///< File.

inline constexpr int Stale = 60870;  ///< The archive has a newer version: file.
/// A check-in that made no revision: file.
inline constexpr int NothingChanged = 60250;
inline constexpr int CommentNotTaken = 60261;  ///< By a provider that moves or renames.

// What the dialogs say. A group with one text per command begins at the number given and goes on in
// the order of `DialogCommand`.
inline constexpr int NothingSelected = 60400;
inline constexpr int SelectOnlyOne = 60401;
inline constexpr int SelectionGone = 60402;
inline constexpr int ControlledFilesForbidBranches = 60403;  ///< File, its owner's name.
inline constexpr int ProviderNotCompliant = 60404;
inline constexpr int ForbiddenCharacters = 60405;  ///< The characters.
inline constexpr int CommentRequired = 60406;
inline constexpr int AdvancedOptionsFailed = 60407;  ///< The provider's code.
inline constexpr int UndoWithDescendants = 60408;
inline constexpr int UndoInformationFiles = 60409;
inline constexpr int AddSubUnits = 60410;
inline constexpr int FetchSelectionQuestion = 60411;
inline constexpr int ColumnHeader = 60412;    ///< One text per column, up to 60417.
inline constexpr int CommandCaption = 60420;  ///< Up to 60441.
inline constexpr int CommandTooltip = 60445;  ///< Up to 60466.
inline constexpr int RunToolUnsetTooltip = 60467;
inline constexpr int ToolHistoryTooltip = 60468;
inline constexpr int CommandFailed = 60470;   ///< Up to 60491.
inline constexpr int CommandResults = 60495;  ///< Headings above what failed, up to 60510.
inline constexpr int OptionTitle = 60520;     ///< Of a provider's option window.
inline constexpr int OptionTitleOfCommand =
    60530;  ///< The same by command: fetch, check out, undo, check in, add.
inline constexpr int ConnectWithoutArchive = 60535;
inline constexpr int CommandFault = 60560;  ///< What happened.
inline constexpr int CommandStillRuns = 60561;
inline constexpr int NoProjectOpen = 60562;
inline constexpr int UserCommandFailed = 60563;
// Why a unit came to nothing about which nobody had words.
inline constexpr int UnitRefused = 60564;
inline constexpr int UnitDeclined = 60565;
inline constexpr int CommandNotExpanded = 60566;
inline constexpr int CommandNotRun = 60567;
inline constexpr int ToolFailedSilently = 60568;
inline constexpr int UnitNotReloaded = 60569;

// What the archive browser and the synchronize dialog say.
inline constexpr int SyncNewInArchive = 60600;  ///< How an item stands to its unit.
inline constexpr int SyncArchiveAhead = 60601;
inline constexpr int SyncChangedHere = 60602;
inline constexpr int SyncColumnHeader = 60603;     ///< One text per column, up to 60607.
inline constexpr int ArchiveColumnHeader = 60608;  ///< The same, up to 60611.
inline constexpr int TimeStampsForProvider = 60612;
inline constexpr int TimeStampsForBranches = 60613;
inline constexpr int NothingLeftToSynchronize = 60614;
inline constexpr int SyncCheckOutFailed = 60615;
inline constexpr int SyncLoadFailed = 60616;
inline constexpr int NoItemSelected = 60617;
inline constexpr int SelectOneItem = 60618;
inline constexpr int ArchiveCheckOutFailed = 60619;
inline constexpr int ArchiveFetchFailed = 60620;
inline constexpr int OverwriteChanges = 60621;  ///< Item.
inline constexpr int LoadCheckedOutUnit = 60622;
inline constexpr int LoadFetchedUnit = 60623;
inline constexpr int ItemNotLoaded = 60624;  ///< Item.
inline constexpr int SyncComparesTimes = 60625;
inline constexpr int ArchiveTitle = 60626;       ///< Archive.
inline constexpr int ItemButtonCaption = 60630;  ///< In the order of `ItemButton`, up to 60636.
inline constexpr int ItemButtonTooltip = 60640;  ///< The same, up to 60646.
// What is said about comparisons.
inline constexpr int NothingToCompare = 60650;           ///< File or directory.
inline constexpr int CompareToolNotStarted = 60651;      ///< Program.
inline constexpr int StubNotCompared = 60652;            ///< Name, type name.
inline constexpr int ControlledFileNotCompared = 60653;  ///< What such files are called.
inline constexpr int SideNotMade = 60654;                ///< Directory.
inline constexpr int SideNotWritten = 60655;             ///< Unit's name, directory.
inline constexpr int NewestVersionCompared = 60656;      ///< Label.
inline constexpr int VersionNotFetched = 60657;          ///< Unit's name.

}  // namespace veldra::MessageId
