#pragma once

#include <span>

#include "host/cli/Console.h"
#include "host/cli/ExitCode.h"
#include "host/cli/Options.h"

namespace veldra::host::cli {

struct Command;

/// One call of the program.
struct Invocation {
  const Command& command;
  const Options& options;
  Console& console;
};

/// One command of the program.
struct Command {
  const char* name;
  const char* summary;
  unsigned options;  ///< Of `OptionSet`.
  /// Throws `CommandError` for what ends the whole command.
  ExitCode (*run)(const Invocation& invocation);
};

/// Every command, in the order of the help.
std::span<const Command> commandTable();

// The commands themselves; each has a file of its own name.
ExitCode runInit(const Invocation& invocation);
ExitCode runConnect(const Invocation& invocation);
ExitCode runStatus(const Invocation& invocation);
ExitCode runLs(const Invocation& invocation);
ExitCode runAdd(const Invocation& invocation);
ExitCode runCheckOut(const Invocation& invocation);
ExitCode runCheckIn(const Invocation& invocation);
ExitCode runUndo(const Invocation& invocation);
ExitCode runLock(const Invocation& invocation);
ExitCode runUnlock(const Invocation& invocation);
ExitCode runFetch(const Invocation& invocation);
ExitCode runHistory(const Invocation& invocation);
ExitCode runCompare(const Invocation& invocation);
ExitCode runDelete(const Invocation& invocation);
ExitCode runMove(const Invocation& invocation);
ExitCode runRename(const Invocation& invocation);
ExitCode runProperty(const Invocation& invocation);
ExitCode runExpand(const Invocation& invocation);
ExitCode runPack(const Invocation& invocation);
ExitCode runProvider(const Invocation& invocation);
ExitCode runRun(const Invocation& invocation);
ExitCode runDoctor(const Invocation& invocation);
ExitCode runManual(const Invocation& invocation);
ExitCode runKept(const Invocation& invocation);
ExitCode runTrust(const Invocation& invocation);

}  // namespace veldra::host::cli
