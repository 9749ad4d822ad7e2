#pragma once

/// The host texts that the module shows, by the numbers under which every host keeps them. The
/// values after each name fill the text's placeholders, in this order.
namespace veldra::MessageId {

inline constexpr int UnitOutsideWorkingDirectory =
    949;                                       ///< File, working dir, unit's dir, archive dir.
inline constexpr int OverwriteQuestion = 953;  ///< File name, full file name.
inline constexpr int ErrorPatternMatched = 958;
inline constexpr int WarningPatternMatched = 959;
inline constexpr int CommandTimedOut = 962;
inline constexpr int NoCMToolSelected = 46554;
inline constexpr int ProviderNotLocated = 46563;
inline constexpr int FileNotLoaded = 47640;        ///< Full file name.
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
inline constexpr int NoProcessRunner = 60010;
inline constexpr int InternalError = 60011;  ///< Operation, what happened.
inline constexpr int NoMoveTarget = 60020;
inline constexpr int NoNewName = 60021;
inline constexpr int CopyNotKept = 60030;  ///< File, reason.

}  // namespace veldra::MessageId
