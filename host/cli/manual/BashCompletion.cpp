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

constexpr char Names[] = R"sh(
# The units of the project, a line each: what goes on from $1, without $2. Not by compgen -W, which
# would run what stands in a name.
_veldra_cm_units() {
  local from=${1//\\/} before=${2//\\/} what=units unit
  [[ $1 != *::* ]] || what=names
  shift 2
  from=${from#[\"\']} before=${before#[\"\']}
  while IFS= read -r unit; do
    [[ $unit != "$from"* ]] || printf '%s\n' "${unit#"$before"}"
  done < <("$@" manual $what 2>/dev/null)
}
)sh";

constexpr char Completion[] = R"sh(
  # Colons part words, and readline begins anew behind them; the name of a unit goes on.
  local from=$current left= at=$COMP_CWORD line=${COMP_LINE:0:COMP_POINT}
  [[ $current == *[!:]* ]] || left=$current
  while ((--at > 0)) && [[ $from == :* || ${COMP_WORDS[at]} == *: ]] &&
    [[ $line == *"${COMP_WORDS[at]}$from" ]]; do
    from=${COMP_WORDS[at]}$from left=${COMP_WORDS[at]}$left
  done
  # A name with a dollar sign or a backquote might get into the line as a command.
  mapfile -t COMPREPLY < <({
    compgen -W "$words" -- "$current"
    [[ -z $command ]] || compgen -f -- "$current"
    [[ -z $units ]] || _veldra_cm_units "$from" "$left" "${COMP_WORDS[0]}" "${project[@]}"
  } | grep -v '[$`]' | sort -u)
}
complete -o filenames -F _veldra_cm veldra-cm
)sh";

}  // namespace

std::string bashCompletion() {
  std::string script =
      std::string("# Completes veldra-cm in bash.\n") + Names +
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
  return script + "  esac\n  case $command in\n    " + unitCommands() + ") units=yes ;;\n  esac" +
         Completion;
}

}  // namespace veldra::host::cli
