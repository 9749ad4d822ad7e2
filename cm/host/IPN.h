#pragma once

/// Names of the properties that the host publishes: the subject, the common metaclasses and the
/// command templates. A tool pack uses exactly these names.
namespace veldra::IPN {

// Subject and metaclasses.
inline constexpr char CM[] = "ConfigurationManagement";
inline constexpr char General[] = "General";
inline constexpr char CMGeneral[] = "General";
inline constexpr char SCC[] = "SCC";

/// Names the command-line tool, and with it the metaclass of the tool's own properties.
inline constexpr char CMTool[] = "CMTool";

// The archive and how it is chosen.
inline constexpr char CMArchive[] = "Archive";
inline constexpr char CMArchiveSelection[] = "ArchiveSelection";

// Command templates of the operations.
inline constexpr char CMConnectToCMRepository[] = "ConnectToCMRepository";
inline constexpr char CMAddMember[] = "AddMember";
inline constexpr char CMCheckIn[] = "CheckIn";
inline constexpr char CMCheckOut[] = "CheckOut";
inline constexpr char CMCheckOutFromArchive[] = "CheckOutFromArchive";
inline constexpr char CMFetch[] = "Fetch";
inline constexpr char CMFetchFromArchive[] = "FetchFromArchive";
inline constexpr char CMListArchive[] = "ListArchive";
inline constexpr char CMLockItem[] = "Lock";
inline constexpr char CMUnLockItem[] = "UnLock";
inline constexpr char Delete[] = "Delete";
inline constexpr char DeleteDirectory[] = "DeleteDirectory";
inline constexpr char MoveDirectory[] = "MoveDirectory";
inline constexpr char Rename[] = "Rename";
inline constexpr char RenameDirectory[] = "RenameDirectory";

// Words that the keyword "mode" stands for.
inline constexpr char CMReadOnly[] = "ReadOnly";
inline constexpr char CMReadWrite[] = "ReadWrite";

/// Whether a check-out saves the model first (boolean).
inline constexpr char CMSaveOnCheckOut[] = "SaveOnCheckOut";

/// How long a command may run, in milliseconds; 0 or no number means for ever.
inline constexpr char CMChildThreadTimeOut[] = "ChildThreadTimeOut";

// Patterns that split and read the answer of the list-archive command.
inline constexpr char CMMultiRecordDelimiter[] = "MultiRecordDelimiter";
inline constexpr char CMListArchiveItsWorkingFile[] = "ListArchiveItsWorkingFile";
inline constexpr char CMListArchiveItsVersion[] = "ListArchiveItsVersion";
inline constexpr char CMListArchiveItsMode[] = "ListArchiveItsMode";
inline constexpr char CMListArchiveItsLocker[] = "ListArchiveItsLocker";

/// Lists the versions of the project's files here, in the form of the list-archive command, for a
/// tool that leaves no version in the files.
inline constexpr char WorkspaceVersions[] = "WorkspaceVersions";

// Patterns that read the header which the tool expands in a unit's file, and the file that holds
// the header of a new unit.
inline constexpr char CMHeaderFile[] = "CMHeaderFile";
inline constexpr char CMHeaderItsVersion[] = "CMHeaderItsVersion";
inline constexpr char CMHeaderItsLocker[] = "CMHeaderItsLocker";

}  // namespace veldra::IPN
