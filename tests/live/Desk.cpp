#include "tests/live/Desk.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/IUserMessages.h"
#include "cm/ui/logic/archive/ListArchive.h"
#include "host/model/UnitCore.h"
#include "host/platform/Processes.h"

namespace veldra::live {

class Desk::Door : public host::UserDoor {
 public:
  std::vector<std::string> told;

  void notify(const std::string& text, int /*level*/) override { told.push_back(text); }
  int ask(const std::string& text, int flags) override {
    told.push_back(text);
    constexpr int Buttons = 0xF;
    return (flags & Buttons) == MessageBox::Ok ? MessageBox::AnswerOk : MessageBox::AnswerYes;
  }
  std::string askOverwrite(const std::string& /*text*/) override { return "yes"; }
  std::string askPartialLoad(const std::string& /*text*/, const std::string& /*name*/) override {
    return "yes";
  }
};

/// Children run as ever, but for those that nobody waits for.
class Desk::Starts : public IProcesses {
 public:
  std::string last;

  std::unique_ptr<RunThread> createRunThread(const std::string& command) override {
    return m_processes.createRunThread(command);
  }
  std::unique_ptr<IOutputFile> createOutputFile(const std::string& fileName) override {
    return m_processes.createOutputFile(fileName);
  }
  std::unique_ptr<RunThread> createRunThreadRedirect(const std::string& command,
                                                     IOutputFile* file) override {
    return m_processes.createRunThreadRedirect(command, file);
  }
  bool startDetached(const std::string& command) override {
    last = command;
    return true;
  }

 private:
  host::Processes m_processes;
};

Desk::Desk(const Sandbox& sandbox, const std::string& folder)
    : m_sandbox(sandbox),
      m_folder(folder),
      m_formerDirectory(std::filesystem::current_path()),
      m_door(std::make_unique<Door>()),
      m_starts(std::make_unique<Starts>()) {
  for (const auto& [name, value] : sandbox.environment()) {
    const char* const former = std::getenv(name.c_str());
    m_formerEnvironment[name] = former ? std::optional<std::string>(former) : std::nullopt;
    ::setenv(name.c_str(), value.c_str(), 1);
  }
  host::HostOptions options;
  options.output = &m_output;
  options.door = m_door.get();
  options.processes = m_starts.get();
  m_host = std::make_unique<host::ReferenceHost>(options);
  installHost(m_host.get());
  if (const auto problem = m_host->open(sandbox.path(folder))) throw std::runtime_error(*problem);
}

Desk::~Desk() {
  m_archive.reset();
  installHost(nullptr);
  m_host.reset();
  // A comparison ends in the folder for temporary files.
  std::filesystem::current_path(m_formerDirectory);
  for (const auto& [name, value] : m_formerEnvironment) {
    if (value) {
      ::setenv(name.c_str(), value->c_str(), 1);
    } else {
      ::unsetenv(name.c_str());
    }
  }
}

bool Desk::select(const std::string& path) {
  m_archive = std::make_unique<CMArchiveItemListWrapper>();
  DiagnosticList diagnostics;
  if (!listArchiveInto(*m_archive, {}, diagnostics)) {
    throw std::runtime_error("the archive cannot be listed\n" + m_output.str());
  }
  m_window.all = m_archive->list();
  m_window.selected = CMArchiveItemList();
  for (CMArchiveItem* item : m_window.all) {
    if (item->getNameNShortPath(true) == path) m_window.selected.addTail(item);
  }
  return m_window.selected.size() == 1;
}

IUnit* Desk::unit(const std::string& path) {
  host::UnitCore* const core = m_host->project()->unitByFile(m_sandbox.path(m_folder + "/" + path));
  return core != nullptr ? &core->unit() : nullptr;
}

std::vector<std::string> Desk::takeMessages() {
  return std::exchange(m_door->told, {});
}

Ended Desk::compareTool() {
  const std::string line = std::exchange(m_starts->last, {});
  if (line.empty()) throw std::runtime_error("no compare tool was started\n" + m_output.str());
  const std::string folder = std::filesystem::path(VELDRA_CM_PROGRAM).parent_path().string();
  return m_sandbox.shell("PATH='" + folder + "':$PATH\n" + line + " -print\n");
}

}  // namespace veldra::live
