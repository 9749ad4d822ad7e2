#include "tests/support/ScriptedProcesses.h"

#include <utility>

namespace veldra::test {
namespace {

/// Collects what a child writes; the file appears when it is closed.
class ScriptedOutputFile : public IOutputFile {
 public:
  ScriptedOutputFile(MemoryFiles& files, std::string name)
      : m_files(files), m_name(std::move(name)) {}
  ~ScriptedOutputFile() override { m_files.write(m_name, text, true); }
  std::string text;

 private:
  MemoryFiles& m_files;
  std::string m_name;
};

class ScriptedRunThread : public RunThread {
 public:
  ScriptedRunThread(ScriptedProcesses& processes, CommandRun& run, Reply reply,
                    std::string* redirectedTo)
      : m_processes(processes), m_timeout(run.timeout), m_reply(std::move(reply)) {
    m_errors.append(m_reply.errors);
    if (!run.redirected) m_output.append(m_reply.output);
    if (redirectedTo != nullptr) *redirectedTo += m_reply.output;
    ++m_processes.liveRunners;
  }
  ~ScriptedRunThread() override { --m_processes.liveRunners; }

  std::uint32_t getStatus(std::uint32_t timeout) override {
    m_processes.runs.back().timeout = m_timeout = timeout;
    const std::string_view output = m_output.text();
    for (std::size_t size = 0; m_follower && size <= output.size(); size += 11) {
      m_follower(output.substr(0, size));
    }
    if (m_reply.effect) m_reply.effect();
    return m_reply.timesOut ? WaitTimeout : 0;
  }
  void setOutputFollower(OutputFollower follower) override { m_follower = std::move(follower); }
  LineList& errorLines() override { return m_errors; }
  LineList& outputLines() override { return m_output; }
  ProcessEnd end() const override { return m_reply.timesOut ? ProcessEnd::TimedOut : m_reply.end; }
  int endCode() const override { return m_reply.code; }

 private:
  ScriptedProcesses& m_processes;
  std::uint32_t m_timeout;
  Reply m_reply;
  OutputFollower m_follower;
  LineList m_errors;
  LineList m_output;
};

}  // namespace

const Reply& ScriptedProcesses::replyTo(const std::string& command) const {
  static const Reply silence;
  for (auto rule = m_rules.rbegin(); rule != m_rules.rend(); ++rule)
    if (command.find(rule->first) != std::string::npos) return rule->second;
  return silence;
}

std::vector<std::string> ScriptedProcesses::commands() const {
  std::vector<std::string> lines;
  for (const CommandRun& run : runs) lines.push_back(run.command);
  return lines;
}

std::unique_ptr<RunThread> ScriptedProcesses::create(const std::string& command,
                                                     std::string* redirectedTo, bool redirected) {
  m_journal.add("run " + command);
  runs.push_back({command, m_environment.currentDirectory, 0, redirected});
  return std::make_unique<ScriptedRunThread>(*this, runs.back(), replyTo(command), redirectedTo);
}

std::unique_ptr<RunThread> ScriptedProcesses::createRunThread(const std::string& command) {
  return create(command, nullptr, false);
}

std::unique_ptr<IOutputFile> ScriptedProcesses::createOutputFile(const std::string& fileName) {
  outputFiles.push_back(fileName);
  if (outputFilesFail) return nullptr;
  return std::make_unique<ScriptedOutputFile>(m_files, fileName);
}

std::unique_ptr<RunThread> ScriptedProcesses::createRunThreadRedirect(const std::string& command,
                                                                      IOutputFile* file) {
  // Every file that reaches this function was made above.
  auto* own = static_cast<ScriptedOutputFile*>(file);
  return create(command, own != nullptr ? &own->text : nullptr, true);
}

}  // namespace veldra::test
