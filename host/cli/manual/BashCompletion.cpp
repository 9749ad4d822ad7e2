#include <algorithm>

#include "host/cli/manual/Manual.h"

namespace veldra::host::cli {

namespace {

/// Options and fixed words of these sets, with blanks between.
std::string wordList(unsigned sets) {
  std::string words;
  for (const OptionRow* row : rowsOf(sets)) {
    const std::vector<std::string> more = row->isPositional() ? wordsOf(*row) : namesOf(*row);
    for (const std::string& word : more) words += (words.empty() ? "" : " ") + word;
  }
  return words;
}

std::string commandNames(const char* between) {
  std::string names;
  for (const Command& command : commandTable()) {
    names += (names.empty() ? "" : between) + std::string(command.name);
  }
  return names;
}

/// The commands that units are named to.
std::string unitCommands() {
  std::string names;
  for (const Command& command : commandTable()) {
    const std::vector<const OptionRow*> rows = rowsOf(command.options);
    const bool takesUnits = std::ranges::any_of(
        rows, [](const OptionRow* row) { return row->isPositional() && namesUnits(*row); });
    if (takesUnits) names += (names.empty() ? "" : "|") + std::string(command.name);
  }
  return names;
}

}  // namespace

std::string bashCompletion() {
  std::string script =
      "# Completes veldra-cm in bash.\n"
      "_veldra_cm() {\n"
      "  local current=${COMP_WORDS[COMP_CWORD]} command= words word before= units=\n"
      "  local -a project=()\n"
      "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
      "    case $before in\n"
      "      -p|--project) project=(-p \"${word//\\\\/}\"); before=; continue ;;\n"
      "    esac\n"
      "    before=$word\n"
      "    case $word in\n      " +
      commandNames("|") +
      ") command=${command:-$word} ;;\n    esac\n  done\n"
      "  words='--help " +
      wordList(OptionSet::Everywhere) + "'\n  case $command in\n    '') words+=' --version " +
      commandNames(" ") + "' ;;\n";
  for (const Command& command : commandTable()) {
    const std::string words = wordList(command.options);
    if (!words.empty())
      script += std::string("    ") + command.name + ") words+=' " + words + "' ;;\n";
  }
  return script +
         "  esac\n"
         "  case $command in\n    " +
         unitCommands() +
         ")\n      units=$(\"${COMP_WORDS[0]}\" \"${project[@]}\" manual units 2>/dev/null) ;;\n"
         "  esac\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\"\n"
         "    [[ -z $command ]] || { compgen -f -- \"$current\"\n"
         "      IFS=$'\\n' compgen -W \"$units\" -- \"${current//\\\\/}\"; } | sort -u)\n"
         "}\n"
         "complete -o filenames -F _veldra_cm veldra-cm\n";
}

}  // namespace veldra::host::cli
