#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cm/host/RunThread.h"
#include "tests/support/Journal.h"
#include "tests/support/MemoryEnvironment.h"

namespace veldra::test {

/// What a command answers.
struct Reply {
  std::string output{};
  std::string errors{};
  bool timesOut = false;
  ProcessEnd end = ProcessEnd::Exited;
  int code = 0;
  std::function<void()> effect{};  ///< What the command does to the world, for example to a file.
};

/// One command that was run.
struct CommandRun {
  std::string command;
  std::string directory;  ///< The current directory meanwhile.
  std::uint32_t timeout = 0;
  bool redirected = false;
};

/// Runs nothing: commands get prepared answers and are written down.
class ScriptedProcesses : public IProcesses {
 public:
  ScriptedProcesses(Journal& journal, MemoryEnvironment& environment, MemoryFiles& files)
      : m_journal(journal), m_environment(environment), m_files(files) {}

  /// Commands that contain `text` get this answer; the newest rule that fits counts. Others print
  /// nothing and succeed.
  void answer(std::string text, Reply reply) {
    m_rules.emplace_back(std::move(text), std::move(reply));
  }
  const Reply& replyTo(const std::string& command) const;

  std::vector<CommandRun> runs;
  std::vector<std::string> outputFiles;
  bool outputFilesFail = false;
  std::vector<std::string> detached;  ///< Commands that were started and left alone.
  bool detachedFail = false;
  int liveRunners = 0;

  std::vector<std::string> commands() const;

  std::unique_ptr<RunThread> createRunThread(const std::string& command) override;
  std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) override;
  std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                     IOutputFile* file) override;
  bool startDetached(const std::string& command) override {
    if (!detachedFail) detached.push_back(command);
    return !detachedFail;
  }

 private:
  std::unique_ptr<RunThread> create(const std::string& command, std::string* redirectedTo,
                                    bool redirected);

  Journal& m_journal;
  MemoryEnvironment& m_environment;
  MemoryFiles& m_files;
  std::vector<std::pair<std::string, Reply>> m_rules;
};

}  // namespace veldra::test
