#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/platform/ChildWait.h"
#include "host/platform/Processes.h"
#include "host/platform/Result.h"

namespace veldra::host {

/// How a child ended.
struct ChildStatus {
  enum class Kind { Exited, Crashed, Unknown };
  Kind kind = Kind::Unknown;
  int number = 0;  ///< The exit code, or the system's number of what ended it.
};

/// Runs one command line, from the start of the child to its end, within `getStatus`. The child
/// itself is the room's.
class CommandRun : public RunThread {
 public:
  std::uint32_t getStatus(std::uint32_t timeout) override;
  void setOutputFollower(OutputFollower follower) override { m_follower = std::move(follower); }
  LineList& errorLines() override { return m_errorLines; }
  LineList& outputLines() override { return m_outputLines; }
  ProcessEnd end() const override { return m_end; }
  int endCode() const override { return m_endCode; }

 protected:
  /// The settings must outlive the runner.
  CommandRun(std::string command, const ChildSettings& settings)
      : m_command(std::move(command)), m_settings(settings) {}

  /// What to start: a file, and the arguments, the first of which is the name as written.
  struct Start {
    std::string program;
    std::vector<std::string> arguments;
  };

  /// How a child that ran has ended.
  struct Ending {
    ChildWait::Stop stop = ChildWait::Stop::None;
    ChildStatus status;
    bool insideLine = false;  ///< The last error line has no end.
  };

  virtual bool isCancelled() const = 0;
  /// Starts the child and waits for its end. A reason when it could not be started.
  virtual Result<Ending> runChild(Start& start, std::uint32_t timeout) = 0;
  /// What ended a child that did not exit, to follow "was ended by ".
  virtual std::string crashText(int number) const = 0;

  const ChildSettings& settings() const { return m_settings; }
  /// Empty when nobody follows the output.
  const OutputFollower& follower() const { return m_follower; }
  LineList& output() { return m_outputLines; }
  LineList& errors() { return m_errorLines; }
  /// "'NAME' could not be started: REASON."
  std::string startError(std::string_view reason) const;
  /// The program's name as the command has it.
  const std::string& name() const { return m_name; }

 private:
  void run(std::uint32_t timeout);
  Result<Start> prepare();
  void fail(ProcessEnd end, const std::string& line);
  void conclude(const Ending& ending);

  std::string m_command;
  const ChildSettings& m_settings;
  std::string m_name;
  OutputFollower m_follower;
  LineList m_outputLines;
  LineList m_errorLines;
  ProcessEnd m_end = ProcessEnd::Running;
  int m_endCode = 0;
};

}  // namespace veldra::host
