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
      // The value of a long name may stand behind an equals sign.
      const bool mayEqual = !row->isSwitch() && name.starts_with("--");
      text += " \\\n" + indent + "'" + name + (mayEqual ? "=" : "") + "[" + quoted(row->help) +
              "]" + (row->isSwitch() ? "" : valueOf(*row)) + "'";
    }
  }
  return text;
}

constexpr char Functions[] = R"sh(#compdef veldra-cm

# Sets project to the one that is named. It comes as it stands on the line, colons and backslashes with
# one more backslash; nothing that stands in it is run.
_veldra-cm-project() {
  local named=${opt_args[-p]:-$opt_args[--project]}
  named=${named//\\:/:}
  named=${(Q)${named//\\\\/\\}}
  [[ $named != '~/'* ]] || named=$HOME/${named#\~/}
  project=${named:-$project}
}

_veldra-cm-units() {
  local -a units
  local what=units
  [[ $PREFIX != *::* ]] || what=names
  _veldra-cm-project
  units=(${(f)"$(_call_program units veldra-cm ${project:+-p ${(q)project}} manual $what 2>/dev/null)"})
  compadd -a units
  _files
}

)sh";

}  // namespace

std::string zshCompletion() {
  std::string script = Functions;
  script +=
      "_veldra-cm() {\n  local curcontext=$curcontext state line project\n"
      "  local -a commands\n  local -A opt_args\n  commands=(\n";
  for (const Command& command : commandTable()) {
    script += std::string("    '") + command.name + ":" + quoted(command.summary) + "'\n";
  }
  script += "  )\n  _arguments -C -A '-*' '(- *)--version[" + std::string(VersionText) + "]'" +
            specifications(OptionSet::Everywhere, "    ") +
            " \\\n    '1:command:->command' '*::argument:->arguments'\n"
            "  _veldra-cm-project\n"
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
