#pragma once

#include <string>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// What an option window shows when it opens.
struct OptionPresets {
  DialogCommand command = DialogCommand::CheckOut;
  std::vector<std::string> unitNames;  ///< What the command is for.
  OptionWindow window = OptionWindow::None;
  std::string comment;
  bool mode = false;      ///< The lock, or that the unit stays checked out.
  bool takesMode = true;  ///< Otherwise the box is disabled.
  bool takesComment = true;
  bool offersDescendants = true;
  bool withDescendants = false;
  bool offersInformationFiles = true;  ///< Otherwise the box is hidden.
  bool withInformationFiles = false;
  bool saysReserved = false;  ///< The lock is called a reservation.
};

/// What the user chose.
struct CommandOptions {
  std::string comment;
  std::string label;
  std::string archive;
  bool mode = false;
  bool withDescendants = false;
  bool withInformationFiles = false;
};

/// What the option windows preset and check.
class VELDRA_CM_EXPORT OptionRules {
 public:
  /// For a command on these units; they may be empty.
  static OptionPresets presets(const CommandRow& row, const UnitList& units);
  /// Whether with-descendants may be chosen.
  static bool offersDescendants(bool foundDescendants);

  /// Whether adding to the archive asks about what lies below, and offers it.
  static bool addsSubUnits();

  /// Why the window may not be closed with these options, as a message; empty when it may.
  static std::string objection(const OptionPresets& presets, const CommandOptions& options);
  /// Why a comment cannot go with a command, as a message; empty when it can.
  static std::string commentObjection(DialogCommand command, const std::string& comment);
  /// What the command is called with.
  static CallArguments arguments(const CommandRow& row, const CommandOptions& options);
  /// The command's name with the words that a button has no room for: "Undo Check Out".
  static std::string commandTitle(DialogCommand command);
  /// The window's title; under a provider it names the command when the settings want that.
  static std::string title(const OptionPresets& presets);
};

}  // namespace veldra
