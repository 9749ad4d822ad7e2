#include "host/cli/CommandLineProgram.h"

#include <exception>

#include "host/cli/ArgumentParser.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

ExitCode fail(const ParsedArguments& parsed, Console& console, ExitCode code,
              const std::string& sentence) {
  console.err << "veldra-cm: " << linesForPeople(sentence) << '\n';
  if (parsed.options.json) {
    printJson(Report{.command = parsed.command->name, .message = sentence}, console.out);
  }
  return code;
}

}  // namespace

ExitCode runProgram(const std::vector<std::string>& arguments, Console& console) {
  ParsedArguments parsed = parseArguments(arguments, console);
  if (parsed.command == nullptr) return parsed.end;
  try {
    return parsed.command->run({*parsed.command, parsed.options, console});
  } catch (const CommandError& error) {
    return fail(parsed, console, error.code(), error.what());
  } catch (const std::exception& error) {
    return fail(parsed, console, ExitCode::NothingDone,
                std::string("The command ended by an internal error: ") + error.what());
  }
}

}  // namespace veldra::host::cli
