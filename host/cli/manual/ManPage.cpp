#include "host/cli/manual/Manual.h"

namespace veldra::host::cli {

namespace {

/// A text as it is: a hyphen that is typed, no backslash and no line that begins as a request.
std::string plain(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '-' || c == '\\') out += '\\';
    out += c;
    if (c == '\\') out.replace(out.size() - 2, 2, "\\e");
  }
  return out.starts_with('.') || out.starts_with('\'') ? "\\&" + out : out;
}

std::string optionEntry(const OptionRow& row) {
  std::string text = ".TP\n";
  if (row.isPositional())
    return text + "\\fI" + plain(row.value) + "\\fR\n" + plain(row.help) + ".\n";
  std::string names;
  for (const std::string& name : namesOf(row)) {
    names += (names.empty() ? "" : ", ") + std::string("\\fB") + plain(name) + "\\fR";
  }
  if (!row.isSwitch()) names += " \\fI" + plain(row.value) + "\\fR";
  return text + names + "\n" + plain(row.help) + ".\n";
}

std::string switchEntry(const char* name, const char* text) {
  return ".TP\n\\fB" + plain(name) + "\\fR\n" + plain(text) + ".\n";
}

std::string commandEntry(const Command& command) {
  std::string usage = ".SS \"" + plain(command.name);
  std::string options;
  for (const OptionRow* row : rowsOf(command.options)) {
    if (row->isPositional()) usage += std::string(" ") + plain(row->value);
    options += optionEntry(*row);
  }
  return usage + "\"\n" + plain(command.summary) + ".\n" + options;
}

}  // namespace

std::string manPage() {
  std::string page = ".TH VELDRA\\-CM 1 \"\" \"Veldra CM " VELDRA_VERSION
                     "\" \"User Commands\"\n"
                     ".SH NAME\nveldra\\-cm \\- version control for models\n"
                     ".SH SYNOPSIS\n.B veldra\\-cm\n[\\fIOPTIONS\\fR] \\fICOMMAND\\fR ...\n"
                     ".SH OPTIONS\nThey may stand before or after the command.\n";
  for (const OptionRow* row : rowsOf(OptionSet::Everywhere)) page += optionEntry(*row);
  page += switchEntry("--help", HelpText) + switchEntry("--version", VersionText);
  page += ".SH COMMANDS\n";
  for (const Command& command : commandTable()) page += commandEntry(command);
  page +=
      ".SH EXIT STATUS\n"
      ".TP\n0\nAll is done.\n.TP\n1\nSome units failed, the others are done.\n"
      ".TP\n2\nThe command line is wrong.\n"
      ".TP\n3\nNothing was done: no project, no archive, no tool, or every unit failed.\n"
      ".TP\n130\nThe command was interrupted; what was done until then stays done.\n"
      ".SH FILES\n"
      ".TP\n~/.config/veldra\\-cm/user.toml\nThe user's settings.\n"
      ".TP\n~/.config/veldra\\-cm/trusted\\-commands\nThe commands of projects that the user "
      "has trusted.\n"
      ".TP\n/etc/veldra\\-cm/site.toml\nThe settings of the site.\n"
      ".TP\n\\&.veldra\nIn a project: copies of files that commands have overwritten.\n";
  return page;
}

}  // namespace veldra::host::cli
