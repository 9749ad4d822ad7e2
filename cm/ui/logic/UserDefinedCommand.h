#pragma once

#include <string>

#include "cm/host/Export.h"
#include "cm/host/IUnit.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// Commands that users define as properties, beside the operations of the module.
class VELDRA_CM_EXPORT UserDefinedCommand {
 public:
  /// Puts the units into the block that begins with a double quote and ARG= and ends at the next
  /// double quote: its text once per unit, joined by blanks, with "$Directory", "$Path", "$Ver"
  /// (always empty) and "$Archive" filled in. After that "$OMROOT" is filled in everywhere.
  static std::string ExpandUserDefCommand(const std::string& command, const UnitList& units);

  /// Saves the model and runs the expanded command; an empty one does nothing. False when it could
  /// not be run or failed; the user has been told, and the tool's words are in the CM output.
  static bool RunUserDefCommand(const std::string& command, const UnitList& units,
                                const std::string& transactionName = "User Defined Command",
                                int failureMessage = MessageId::UserCommandFailed);

  /// Whether a property of the project is behind the button.
  static bool isBehind(DialogCommand command);
  /// The command behind one of the four buttons or the button that runs the CM tool; empty when the
  /// project has none.
  static std::string commandOf(DialogCommand command);
  /// Runs what is behind the button. True when nothing failed, also when there is nothing;
  /// otherwise the user has been told.
  static bool run(DialogCommand command, const UnitList& units);
};

}  // namespace veldra
