#pragma once

#include <cstddef>
#include <span>

#include "cm/core/CMDiagnostic.h"
#include "cm/core/CallArguments.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The commands of the main dialog, in the order of its buttons. Captions, tooltips, headings and
/// errors follow each other in this order in the host's texts.
enum class DialogCommand : int {
  Connect,
  ListArchive,
  Compare,
  Synchronize,
  RefreshStatus,
  RunTool,
  CheckOutBranch,
  Fetch,
  CheckOut,
  UndoCheckOut,
  CheckIn,
  AddToArchive,
  Lock,
  Unlock,
  History,
  Properties,
  UserCommand1,
  UserCommand2,
  UserCommand3,
  UserCommand4,
  FlatView,
  TreeView,
};

/// How many rows must be selected.
enum class SelectionRule {
  Any,
  AtLeastOne,
  OnlyOne,        ///< None and many are told apart in what the user is told.
  OneAndOnlyOne,  ///< None and many are told the same.
};

/// Which window asks for the options of a command.
enum class OptionWindow { None, Provider, CheckIn, CheckOut, Lock, Connect, Question, Compare };

/// What is particular about a command under one back end.
struct CommandSide {
  SelectionRule selection = SelectionRule::Any;
  OptionWindow window = OptionWindow::None;
  const char* completed = "";  ///< Trace line after a successful run.
};

/// The variant of a command that takes what lies below the selected units along.
struct RecursiveVariant {
  const char* starting;
  const char* completed;
  const char* reloadStarting = nullptr;  ///< Null when the model is not reloaded afterwards.
  const char* reloadCompleted = nullptr;
};

using UnitCommandFunction = int (*)(UnitList&, ArgumentList&, DiagnosticList&);

/// A command that calls the facade with units. The windows and the command line go by it.
struct CommandRow {
  DialogCommand command;
  int controlId;
  const char* starting;  ///< Trace line before anything is asked.
  CommandSide tool;
  CommandSide provider;
  UnitCommandFunction call;
  const char* templateProperty = "";  ///< Holds the tool's command line; empty when none does.
  unsigned parts = 0;                 ///< Bits of `CallPart`.
  bool changesModel = false;          ///< Runs inside an undo transaction of the host.
  bool needsCompliance = false;       ///< Under the provider back end it must be usable.
  bool takesInformationFiles = false;
  const RecursiveVariant* recursive = nullptr;
  UnitCommandFunction recursiveCall = nullptr;  ///< A tool's own way with all below a package.
};

/// The row of a command; null for those that do not call the facade with units.
VELDRA_CM_EXPORT const CommandRow* commandRow(DialogCommand command);
VELDRA_CM_EXPORT std::span<const CommandRow> commandTable();

}  // namespace veldra
