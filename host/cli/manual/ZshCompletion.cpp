#include "host/cli/manual/Manual.h"

namespace veldra::host::cli {

namespace {

/// A text inside single quotes, where `_arguments` gives brackets and colons a meaning.
std::string quoted(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\'') {
      out += "'\\''";
    } else {
      if (c == '[' || c == ']' || c == ':') out += '\\';
      out += c;
    }
  }
  return out;
}

std::string valueOf(const OptionRow& row) {
  std::string words;
  for (const std::string& word : wordsOf(row)) words += (words.empty() ? "" : " ") + word;
  const std::string file = namesUnits(row) ? "_veldra-cm-units" : "_files";
  return ":" + quoted(row.value) + ":" + (words.empty() ? file : "(" + words + ")");
}

/// The specifications of these sets, one a line.
std::string specifications(unsigned sets, const std::string& indent) {
  std::string text = " \\\n" + indent + "'(- *)--help[" + HelpText + "]'";
  int position = 0;
  for (const OptionRow* row : rowsOf(sets)) {
    if (row->isPositional()) {
      const bool isList = std::holds_alternative<std::vector<std::string> Options::*>(row->target);
      text += " \\\n" + indent + "'" + (isList ? "*" : std::to_string(++position)) + valueOf(*row) +
              "'";
      continue;
    }
    for (const std::string& name : namesOf(*row)) {
      text += " \\\n" + indent + "'" + name + "[" + quoted(row->help) + "]" +
              (row->isSwitch() ? "" : valueOf(*row)) + "'";
    }
  }
  return text;
}

}  // namespace

std::string zshCompletion() {
  std::string script =
      "#compdef veldra-cm\n\n_veldra-cm-units() {\n  local -a units\n  local what=units\n"
      "  [[ $PREFIX != *::* ]] || what=names\n"
      "  units=(${(f)\"$(_call_program units veldra-cm manual $what 2>/dev/null)\"})\n"
      "  compadd -a units\n  _files\n}\n\n_veldra-cm() {\n  local curcontext=$curcontext state "
      "line\n  local -a commands\n  commands=(\n";
  for (const Command& command : commandTable()) {
    script += std::string("    '") + command.name + ":" + quoted(command.summary) + "'\n";
  }
  script += "  )\n  _arguments -C '(- *)--version[" + std::string(VersionText) + "]'" +
            specifications(OptionSet::Everywhere, "    ") +
            " \\\n    '1:command:->command' '*::argument:->arguments'\n"
            "  case $state in\n    command) _describe command commands ;;\n    arguments)\n"
            "      case $words[1] in\n";
  for (const Command& command : commandTable()) {
    script += std::string("        ") + command.name + ")\n          _arguments" +
              specifications(command.options | OptionSet::Everywhere, "            ") +
              "\n          ;;\n";
  }
  return script + "      esac\n      ;;\n  esac\n}\n\n_veldra-cm \"$@\"\n";
}

}  // namespace veldra::host::cli
