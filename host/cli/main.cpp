#include <iostream>
#include <string>
#include <vector>

#include "host/cli/CommandLineProgram.h"
#include "host/cli/Interrupt.h"
#include "host/platform/Program.h"

int main(int argc, char** argv) {
  using namespace veldra::host;
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  cli::catchInterrupts();
  prepareTerminal();
  addOwnFolderToPath();
  const bool isErrorSeen = isTerminal(StandardStream::Error);
  cli::Console console{.in = std::cin,
                       .out = std::cout,
                       .err = std::cerr,
                       .asks = isErrorSeen && isTerminal(StandardStream::Input),
                       .showsProgress = isErrorSeen};
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  const cli::ExitCode code = cli::runProgram(arguments, console);
  std::cout.flush();
  // Results that nobody got are no results.
  if (!std::cout && code == cli::ExitCode::AllDone) {
    std::cerr << "veldra-cm: The output cannot be written.\n";
    return static_cast<int>(cli::ExitCode::SomeFailed);
  }
  return static_cast<int>(code);
}
