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

}  // namespace veldra::host::MessageNumber
