#pragma once

#include <span>
#include <string>

#include "cm/core/CMArguments.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"

namespace veldra::host::desktop {

enum class CommandId {
  AddMember,
  CheckOut,
  CheckIn,
  UndoCheckOut,
  Fetch,
  Lock,
  Unlock,
  History,
  Properties
};

/// What distinguishes one CM command on units from another.
struct CommandRow {
  CommandId id;
  const char* name;  ///< In English; the windows translate it.
  const char* hint;
  const char* shortcut;
  const char* icon;
  int (*run)(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  const char* templateProperty;  ///< Without it the tool does not have the command.
  CMMode::Mode mode = CMMode::ReadOnly;
  bool asksComment = false;
  bool asksLabel = false;
  bool savesFirst = false;     ///< What is unsaved must be in the file that the tool takes.
  bool changesArchive = true;  ///< Who holds what may be different afterwards.
  bool losesChanges = false;   ///< Asks before unsaved changes go.
  bool offersDescendants = true;
};

std::span<const CommandRow> commandTable();
const CommandRow& commandRow(CommandId id);

/// Whether the selected back end has the command.
bool isAvailable(const CommandRow& row);

}  // namespace veldra::host::desktop
