#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace veldra::host::cli {

/// What the user asked for. Every member is filled by one row of `optionTable`.
struct Options {
  std::optional<std::string> project;
  bool json = false;
  bool dryRun = false;
  bool verbose = false;

  std::vector<std::string> units;
  bool all = false;
  bool recursive = false;
  std::optional<std::string> message;
  std::optional<std::string> messageFile;
  bool lastComment = false;
  std::string label;
  bool force = false;
  bool update = false;

  std::string directory;
  std::optional<std::string> name;
  std::optional<std::string> tool;
  std::optional<std::string> archive;

  std::optional<std::string> commandTemplate;
  std::vector<std::string> arguments;
  std::optional<std::string> property;
  std::optional<std::string> unit;
  bool explain = false;

  std::string action;
  std::optional<std::string> key;
  std::optional<std::string> value;
  bool forUser = false;
  bool forMachine = false;

  std::vector<std::string> labels;

  bool list = false;
  bool yes = false;
};

/// Sets of options; a command takes one or several of them.
namespace OptionSet {
inline constexpr unsigned Everywhere = 0x1;  ///< Before or after the command.
inline constexpr unsigned Units = 0x2;
inline constexpr unsigned Comment = 0x4;
inline constexpr unsigned Label = 0x8;
inline constexpr unsigned Overwrite = 0x10;
inline constexpr unsigned Update = 0x20;
inline constexpr unsigned NewProject = 0x40;
inline constexpr unsigned Archive = 0x80;
inline constexpr unsigned Expansion = 0x100;
inline constexpr unsigned Property = 0x200;
inline constexpr unsigned Pack = 0x400;
inline constexpr unsigned Trust = 0x800;
inline constexpr unsigned Kept = 0x1000;
inline constexpr unsigned Running = 0x2000;
inline constexpr unsigned Doctor = 0x4000;
inline constexpr unsigned Manual = 0x8000;
inline constexpr unsigned Recursive = 0x10000;
inline constexpr unsigned NamedUnits = 0x20000;  ///< Units that have to be named one by one.
inline constexpr unsigned NewName = 0x40000;
inline constexpr unsigned Provider = 0x80000;
inline constexpr unsigned Comparing = 0x100000;
}  // namespace OptionSet

/// One option or positional argument.
struct OptionRow {
  using Target =
      std::variant<bool Options::*, std::string Options::*, std::optional<std::string> Options::*,
                   std::vector<std::string> Options::*>;

  unsigned sets;      ///< The sets that it belongs to.
  const char* names;  ///< "-m,--message"; without dashes for a positional argument.
  const char* value;  ///< What its value is called in the help; empty for a switch.
  const char* help;
  Target target;
  bool isRequired = false;

  bool isPositional() const { return names[0] != '-'; }
  bool isSwitch() const { return std::holds_alternative<bool Options::*>(target); }
};

/// Every option of the program. Parsing, help and completions come from here; positional arguments
/// stand in the order in which they are given.
std::span<const OptionRow> optionTable();

}  // namespace veldra::host::cli
