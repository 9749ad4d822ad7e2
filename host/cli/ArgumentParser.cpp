#include "host/cli/ArgumentParser.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>

#include "host/cli/printing/BytesAsText.h"
#include "host/packs/NearestName.h"

namespace veldra::host::cli {

namespace {

constexpr char Footer[] =
    "Exit codes: 0 all done; 1 some units failed, the others are done; 2 wrong usage; 3 nothing "
    "was done; 130 interrupted.";

// The parser gives a meaning to brackets around an argument, to an empty value after "=" and to
// options after a second "--". No argument can hold a NUL byte, so one added to it hides all that
// and is taken away again.
constexpr char Guard = '\0';

std::string guarded(const std::string& argument) {
  return Guard + argument;
}

std::string unguarded(std::string text) {
  std::erase(text, Guard);
  return text;
}

/// Whether the next argument is the value of this one.
bool takesNext(const std::string& argument) {
  const std::string wanted = argument + ",";
  return std::ranges::any_of(optionTable(), [&](const OptionRow& row) {
    return !row.isPositional() && !row.isSwitch() &&
           (std::string(row.names) + ",").find(wanted) != std::string::npos;
  });
}

/// The arguments as the parser wants them: guarded, and the last one first.
std::vector<std::string> prepared(const std::vector<std::string>& arguments) {
  std::vector<std::string> result;
  bool isLiteral = false;
  bool isValue = false;
  for (const std::string& argument : arguments) {
    if (argument == "--" && !isLiteral && !isValue) {
      isLiteral = true;
      continue;
    }
    const bool isOption = argument.starts_with('-') && !isLiteral && !isValue;
    if (!isOption && (isLiteral || argument.starts_with('[') || argument == "++")) {
      result.push_back(guarded(argument));
    } else if (isOption && argument.starts_with("--") && argument.ends_with('=')) {
      result.push_back(argument + Guard);
    } else {
      result.push_back(argument);
    }
    isValue = isOption && takesNext(argument);
  }
  std::ranges::reverse(result);
  return result;
}

void addOption(CLI::App& app, const OptionRow& row, Options& options) {
  CLI::Option* option = nullptr;
  if (const auto* flag = std::get_if<bool Options::*>(&row.target)) {
    option = app.add_flag(row.names, options.**flag, row.help);
  } else if (const auto* list = std::get_if<std::vector<std::string> Options::*>(&row.target)) {
    option = app.add_option_function<std::vector<std::string>>(
        row.names,
        [&options, list](const std::vector<std::string>& values) {
          for (const std::string& value : values) (options.**list).push_back(unguarded(value));
        },
        row.help);
    if (!row.isPositional()) option->allow_extra_args(false);
  } else {
    option = app.add_option_function<std::string>(
        row.names,
        [&options, &row](const std::string& value) {
          if (const auto* text = std::get_if<std::string Options::*>(&row.target)) {
            options.** text = unguarded(value);
          } else {
            options.**std::get_if<std::optional<std::string> Options::*>(&row.target) =
                unguarded(value);
          }
        },
        row.help);
  }
  if (!row.isSwitch()) option->type_name(row.value);
  option->required(row.isRequired);
}

void addOptions(CLI::App& app, unsigned sets, Options& options) {
  for (const OptionRow& row : optionTable()) {
    if ((row.sets & sets) != 0) addOption(app, row, options);
  }
}

/// What is printed for wrong arguments. The parser itself does not name a command that it does not
/// know.
std::string failureText(const CLI::App* app, const CLI::Error& error) {
  const std::vector<std::string> unknown = app->remaining();
  const std::string word = unknown.empty() ? "" : unguarded(unknown.front());
  if (word.empty() || word.starts_with('-') || !app->get_subcommands().empty()) {
    return CLI::FailureMessage::simple(app, error);
  }
  std::vector<std::string> names;
  for (const Command& command : commandTable()) names.emplace_back(command.name);
  const std::string meant = nearestName(word, names);
  std::string text = "There is no command \"" + linesForPeople(word) + "\".";
  if (!meant.empty()) text += " Did you mean \"" + meant + "\"?";
  return text + "\nRun with --help for more information.\n";
}

}  // namespace

ParsedArguments parseArguments(const std::vector<std::string>& arguments, Console& console) {
  ParsedArguments parsed;
  CLI::App app("Version control for models.", "veldra-cm");
  app.footer(Footer);
  app.set_version_flag("--version", "veldra-cm " VELDRA_VERSION);
  app.require_subcommand(1);
  app.failure_message(failureText);
  addOptions(app, OptionSet::Everywhere, parsed.options);
  for (const Command& command : commandTable()) {
    CLI::App* const sub = app.add_subcommand(command.name, command.summary);
    // Options of the program may also follow the command.
    sub->fallthrough();
    sub->allow_windows_style_options(false);
    // Making the options of all commands would take a tenth of a start.
    const bool isMeant = std::ranges::find(arguments, command.name) != arguments.end();
    if (isMeant) addOptions(*sub, command.options, parsed.options);
    sub->callback([&parsed, &command] { parsed.command = &command; });
  }
  try {
    std::vector<std::string> words = prepared(arguments);
    app.parse(words);
  } catch (const CLI::ParseError& e) {
    parsed.command = nullptr;
    parsed.end =
        app.exit(e, console.out, console.err) == 0 ? ExitCode::AllDone : ExitCode::WrongUsage;
  }
  return parsed;
}

}  // namespace veldra::host::cli
