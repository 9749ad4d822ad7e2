#pragma once

/// The reference host's own texts, by their numbers in the message catalogue. The values after each
/// name fill the text's placeholders, in this order.
namespace veldra::host::MessageNumber {

inline constexpr int CommandsNotTrusted = 60100;  ///< Project file.
inline constexpr int PasswordInCommand = 60101;

// What to do about the known failures of tools; see `KnownFailures`.
inline constexpr int ToolMissing = 60110;
inline constexpr int DiskFull = 60111;
inline constexpr int Authentication = 60112;
inline constexpr int Unreachable = 60113;
inline constexpr int NotConnected = 60114;
inline constexpr int RunInterrupted = 60115;
inline constexpr int LockedByOther = 60116;  ///< The holder, or "another user".
inline constexpr int Conflict = 60117;
inline constexpr int OutOfDate = 60118;
inline constexpr int NoSuchRevision = 60119;
inline constexpr int NotInArchive = 60120;
inline constexpr int NoUserName = 60121;
inline constexpr int NotPermitted = 60122;
inline constexpr int FileNameNotTaken = 60811;
inline constexpr int NotCheckedOut = 60812;

// What comparisons print.
inline constexpr int CompareKinds = 60700;   ///< Added, removed, moved, changed.
inline constexpr int CompareStates = 60704;  ///< Same, different, first, second, unreadable.
inline constexpr int CompareMove = 60709;    ///< From, to.
inline constexpr int CompareChange = 60710;  ///< Attribute, value before, value after.
inline constexpr int CompareNone = 60711;
inline constexpr int CompareBinary = 60712;
inline constexpr int CompareSame = 60713;

// The compare tool beside these.
inline constexpr int MergeProjectUnknown = 60714;
inline constexpr int MergeUnitUnknown = 60715;  ///< File's name.
inline constexpr int TandelUsage = 60716;
inline constexpr int FileAndFolder = 60717;      ///< The two.
inline constexpr int OwnToolNotStarted = 60718;  ///< The user's command.
inline constexpr int TandelTitle = 60719;        ///< The two names.
inline constexpr int ControlledSide = 60720;     ///< Path.
inline constexpr int TandelColumns = 60721;      ///< Take, difference, type, element, details.
inline constexpr int TakesSide = 60726;          ///< First, second.
inline constexpr int TandelActions = 60728;      ///< Six, in the order of the window's.
inline constexpr int TandelTotals = 60734;       ///< How many there are, how many are taken.
inline constexpr int SaveChoices = 60735;
inline constexpr int OverwriteChanged = 60736;  ///< File.
inline constexpr int MergeSaved = 60737;        ///< File.
inline constexpr int NotMergedBack = 60738;
inline constexpr int FilesList = 60739;
inline constexpr int DifferencesList = 60740;
inline constexpr int SideNames = 60741;         ///< First, second, for who cannot see them.
inline constexpr int FolderUnreadable = 60743;  ///< File, or folder, as it was named.

}  // namespace veldra::host::MessageNumber
