#pragma once

#include <cstddef>
#include <string>

#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/core/CMOperation.h"
#include "cm/host/CMVDYHandler.h"
#include "cm/host/IProgress.h"
#include "cm/tool/KeptCopy.h"

namespace veldra {

/// When an operation saves the model before its first command.
enum class SaveRule {
  Never,
  Always,
  IfSaveOnCheckOut,
  IfSaveOnCheckOutIsDue,  ///< As before, and only while `CMProperty::saveOnCheckout` says so.
};

/// What distinguishes one command-line operation from another.
struct OperationRow {
  const char* name;              ///< The user's word for it.
  const char* templateProperty;  ///< The property that holds its command template.
  const char* traceBefore;
  const char* traceAfter;
  SaveRule save = SaveRule::Never;
  bool tracksUnits = false;  ///< Brackets the batch with the reload callbacks and validates units.
  bool asksOverwrite = false;
  bool choosesArchive = false;         ///< Makes the unit's archive the main one.
  KeepRule keeps = KeepRule::Nothing;  ///< What it may overwrite.
  int handlerKind = 0;                 ///< Of `CMVDYHandler::Kind`; 0 without a handler.
  bool isHybrid = false;               ///< Serves projects that select the provider, too.
};

/// The template of a command, and where it is looked up when a provider is selected.
struct CommandTemplate {
  const char* property;
  bool providerMetaclass = false;
};

/// An argument on the end of a list, for as long as this lives.
class PushedArgument {
 public:
  PushedArgument(ArgumentList& list, CMArgument& argument) : m_list(list) {
    m_list.push_back(&argument);
  }
  PushedArgument(const PushedArgument&) = delete;
  PushedArgument& operator=(const PushedArgument&) = delete;
  ~PushedArgument() { m_list.pop_back(); }

 private:
  ArgumentList& m_list;
};

/// The host's reload callbacks around a batch: one now, the other at the end. Not for an empty
/// list.
class ReloadBracket {
 public:
  explicit ReloadBracket(bool isNeeded);
  ReloadBracket(const ReloadBracket&) = delete;
  ReloadBracket& operator=(const ReloadBracket&) = delete;
  ~ReloadBracket();

 private:
  bool m_isNeeded;
};

/// Reports one unit's or item's way through an operation to the host.
class UnitProgress {
 public:
  UnitProgress(const char* operation, std::size_t position, std::size_t count, std::string unit);
  UnitProgress(const UnitProgress&) = delete;
  UnitProgress& operator=(const UnitProgress&) = delete;
  ~UnitProgress();

  /// The last call before the end counts.
  void endsAs(UnitEnd end, std::string words = {});
  /// From the result of expansion or execution, and from how the last command ended.
  void endsByCommand(int expanded, int executed);

  /// Whether the host wants the operation to stop.
  static bool isCancelled();

 private:
  ProgressStep m_step;
  UnitEnd m_end = UnitEnd::Done;
  std::string m_words;
};

/// Whether the tool has the template, and it is not empty.
bool hasValue(const CommandTemplate& command);
/// `forDirectory` for a package that has a directory of its own, when that template has a value;
/// otherwise `forFile`.
CommandTemplate templateForDirectory(IUnit& unit, const CommandTemplate& forDirectory,
                                     const CommandTemplate& forFile);

/// What the first argument that answers to the keyword says; empty when none does.
std::string argumentValue(const ArgumentList& arguments, const char* keyword);

/// Asks whether a CM tool is configured. When it is not, one diagnostic says why and the answer is
/// false.
bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid = false);

/// Refuses a unit whose file name no command can carry: true, and a diagnostic that says why.
bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics);
/// The same for another name that its command carries; without a unit the diagnostic has none.
bool refuseUnsafeName(const IUnit* unit, const std::string& name, DiagnosticList& diagnostics);

/// Makes the unit's archive the main one, unless the user chooses the archive.
void chooseArchiveOf(const IUnit* unit);

/// Calls the facade's save callback as the rule demands; nothing for an empty list.
void saveModel(SaveRule rule, bool isListEmpty);

/// Runs an expanded command between its two trace lines; the result of `Execute`.
int runTraced(const std::string& command, const char* traceBefore, const char* traceAfter,
              std::string& output, std::string& errorText);

/// The overwrite question for a writable file: true when the command may go on.
class OverwriteQuestion {
 public:
  /// Reads the setting once per batch; `isNeeded` is false for operations that never ask.
  explicit OverwriteQuestion(bool isNeeded);
  bool allows(const IUnit& unit) const;

 private:
  bool m_asks;
};

}  // namespace veldra
