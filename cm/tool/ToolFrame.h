#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/core/CMOperation.h"
#include "cm/core/KeptCopy.h"
#include "cm/core/UnitBatch.h"
#include "cm/host/CMVDYHandler.h"

namespace veldra {

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
  bool tellsUnchanged = false;  ///< Its commands may find that there was nothing to do: they print
                                ///< a line "unchanged: " with the unit's full name.
  bool tellsNotes = false;      ///< Lines "note: " of its commands are for the user.
};

/// The template of a command, and where it is looked up when a provider is selected.
struct CommandTemplate {
  const char* property;
  bool providerMetaclass = false;
};

/// Reports one unit's or item's way through an operation that runs commands.
class UnitProgress : public UnitReport {
 public:
  using UnitReport::UnitReport;
  /// From the result of expansion or execution, and from how the last command ended.
  void endsByCommand(int expanded, int executed);
  /// The command was well, and there was nothing to do for the file.
  void endsAsUnchanged(const std::string& file);
};

/// The command that another form of a template becomes: the property of the same name with `form`
/// at its end. Empty when the tool has none, or it cannot be expanded.
std::string expandedForm(const CommandTemplate& ordinary, const char* form,
                         ArgumentList& arguments);
/// Whether the tool has the template, and it is not empty.
bool hasValue(const CommandTemplate& command);
/// `forDirectory` for a package that has a directory of its own, when that template has a value;
/// otherwise `forFile`.
CommandTemplate templateForDirectory(IUnit& unit, const CommandTemplate& forDirectory,
                                     const CommandTemplate& forFile);

/// False for a package that is a directory without a file, unless the tool has this template for
/// directories: no other command could name it.
bool canBeNamed(IUnit& unit, const CommandTemplate& forDirectory);

/// Asks whether a CM tool is configured. When it is not, one diagnostic says why and the answer is
/// false.
bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid = false);

/// Refuses a unit whose file name no command can carry: true, and a diagnostic that says why.
bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics);
/// The same for another name that its command carries; without a unit the diagnostic has none.
bool refuseUnsafeName(const IUnit* unit, const std::string& name, DiagnosticList& diagnostics);

/// Makes the unit's archive the main one, unless the user chooses the archive.
void chooseArchiveOf(const IUnit* unit);

/// What begins a line about a unit in the answer of a command.
inline constexpr std::string_view DoneMark = "done: ";
inline constexpr std::string_view UnchangedMark = "unchanged: ";
/// What begins a line that the user is to read although the command was well.
inline constexpr std::string_view NoteMark = "note: ";

/// All that a command has printed: the two texts of `Execute`, and the output that error lines took
/// the place of.
struct ToolAnswer {
  std::string output{};
  std::string errorText{};
  std::string setAside{};

  /// The rest of each line that begins with a mark, on whichever output.
  std::vector<std::string_view> marked(std::string_view mark) const;
  /// The same where they are names of files.
  std::unordered_set<std::string_view> files(std::string_view mark) const;
};

/// Runs an expanded command between its two trace lines; the result of `Execute`.
int runTraced(const std::string& command, const char* traceBefore, const char* traceAfter,
              std::string& output, std::string& errorText);
int runTraced(const std::string& command, const OperationRow& row, ToolAnswer& answer);

}  // namespace veldra
