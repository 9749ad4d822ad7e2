#include "host/cli/Options.h"

namespace veldra::host::cli {

std::span<const OptionRow> optionTable() {
  using namespace OptionSet;
  static const OptionRow rows[] = {
      {Everywhere, "-p,--project", "DIR",
       "The project's folder or file; otherwise the one in the current folder or the nearest above",
       &Options::project},
      {Everywhere, "--json", "", "Print one JSON document instead of text", &Options::json},
      {Everywhere, "--dry-run", "", "Show what would be done, and do nothing", &Options::dryRun},
      {Everywhere, "-v,--verbose", "", "Show everything that the tool prints", &Options::verbose},

      {Units, "units", "UNIT", "Files, or names such as Package::Unit", &Options::units},
      {Units, "--all", "", "Every unit that the command can apply to", &Options::all},
      {Recursive, "-r,--recursive", "", "Take what is in packages, too", &Options::recursive},
      {NamedUnits, "units", "UNIT", "Files, or names such as Package::Unit", &Options::units, true},
      {NewName, "unit", "UNIT", "A file, or a name such as Package::Unit", &Options::unit, true},
      {NewName, "name", "NEWNAME", "Its new name", &Options::name, true},
      {Comment, "-m,--message", "TEXT", "The comment", &Options::message},
      {Comment, "-F,--file", "FILE", "A file that holds the comment; - is the standard input",
       &Options::messageFile},
      {Comment, "--last-comment", "", "Take the comment of the last command that failed",
       &Options::lastComment},
      {Label, "-l,--label", "LABEL", "A revision or label of the tool", &Options::label},
      {Overwrite | Kept, "--force", "", "Overwrite without asking", &Options::force},
      {Update, "-u,--update", "", "Ask the archive for versions and for who holds what",
       &Options::update},

      {Sync, "units", "UNIT", "With --take: which; \"all\" takes everything that differs",
       &Options::units},
      {Sync, "--take", "", "Take the named units over from the archive", &Options::take},

      {NewProject, "directory", "DIR", "The folder of the new project", &Options::directory, true},
      {NewProject, "--name", "NAME", "The project's name; otherwise that of the folder",
       &Options::name},
      {NewProject | Archive, "--tool", "TOOL", "The tool pack that the project works with",
       &Options::tool},
      {NewProject | Archive, "--archive", "WHERE", "The archive: an address or a local path",
       &Options::archive},

      {Expansion, "template", "TEMPLATE", "The text to expand", &Options::commandTemplate},
      {Expansion, "--property", "NAME", "Expand this property in place of a text",
       &Options::property},
      {Expansion, "--arg", "KIND=VALUE",
       "A value; KIND is archive, label, log, mode (RO or RW), targetDir or workspace",
       &Options::arguments},
      {Expansion, "--unit", "UNIT", "The unit that $Unit and its kin stand for", &Options::unit},
      {Expansion, "--explain", "", "Show each step on the error output", &Options::explain},

      {Property, "action", "get|set|list", "What to do", &Options::action, true},
      {Property, "key", "PROPERTY", "SUBJECT.METACLASS.NAME, or just NAME", &Options::key},
      {Property, "value", "VALUE", "The new value", &Options::value},
      {Property, "--user", "", "Store it for the user instead of the project", &Options::forUser},

      {Provider, "action", "list|install|use", "What to do", &Options::action, true},
      {Provider, "provider", "NAME",
       "The provider; for install its library, otherwise the one that comes with this program",
       &Options::key},
      {Provider, "--machine", "", "Install it for every user of the machine", &Options::forMachine},

      {Pack, "action", "list|show|check", "What to do", &Options::action, true},
      {Pack, "name", "NAME", "The pack; for check also a file that ends with .toml", &Options::key},

      {Kept, "action", "list|show|restore", "What to do", &Options::action, true},
      {Kept, "copy", "COPY", "The copy by its name, or a file, whose newest copy is meant",
       &Options::key},

      {Running, "property", "PROPERTY", "The property that holds the command", &Options::property,
       true},
      {Running, "units", "UNIT", "Files, or names such as Package::Unit", &Options::units},

      {Comparing, "unit", "UNIT", "A file, or a name such as Package::Unit", &Options::unit, true},
      {Comparing, "-l,--label", "LABEL",
       "Compare with this version instead of the newest; given twice: compare the two versions",
       &Options::labels},

      {Doctor, "--tool", "TOOL", "The tool pack to look at; otherwise that of the project",
       &Options::tool},

      {Manual, "action", "man|bash|zsh|units|names", "What to print", &Options::action, true},

      {Trust, "--list", "", "Show the commands and do nothing", &Options::list},
      {Trust, "--yes", "", "Trust them without a question", &Options::yes},
  };
  return rows;
}

}  // namespace veldra::host::cli
