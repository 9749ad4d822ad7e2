#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "host/platform/CommandLine.h"
#include "host/platform/Processes.h"

namespace veldra::host {

/// What one child did.
struct Outcome {
  std::uint32_t wait = 0;
  ProcessEnd end = ProcessEnd::Running;
  int code = 0;
  std::string output;
  std::string errors;
};

inline std::string script(const std::string& text) {
  return joinCommandLine({"sh", "-c", text});
}

/// The command that makes the test child take these steps; see tests/support/child.
inline std::string child(const std::vector<std::string>& steps) {
  std::vector<std::string> arguments{VELDRA_TEST_CHILD};
  arguments.insert(arguments.end(), steps.begin(), steps.end());
  return joinCommandLine(arguments);
}

class ProcessesTest : public testing::Test {
 protected:
  static Outcome outcomeOf(RunThread& runner, std::uint32_t timeout = RunThread::WaitForever) {
    Outcome outcome;
    outcome.wait = runner.getStatus(timeout);
    outcome.end = runner.end();
    outcome.code = runner.endCode();
    runner.outputLines().moveTo(outcome.output);
    runner.errorLines().moveTo(outcome.errors);
    return outcome;
  }

  Outcome run(const std::string& command, std::uint32_t timeout = RunThread::WaitForever) {
    return outcomeOf(*m_processes.createRunThread(command), timeout);
  }

  Processes m_processes;
};

}  // namespace veldra::host
