#include "host/ReferenceHost.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "host/UserMessages.h"
#include "host/model/Model.h"
#include "host/model/ModelFileHandler.h"
#include "host/model/Reloading.h"
#include "host/platform/Environment.h"
#include "host/platform/FaultGuard.h"
#include "host/platform/Libraries.h"
#include "host/platform/PatternEngine.h"
#include "host/platform/Processes.h"
#include "host/platform/Registry.h"
#include "host/platform/Secrets.h"
#include "host/platform/StaleFiles.h"
#include "host/platform/TraceLog.h"
#include "host/resources/MessageNumbers.h"
#include "host/trust/GuardedProcesses.h"

namespace veldra::host {
namespace {

/// The CM output window: a stream of the program's.
class OutputWindow : public IAbstractCMManager {
 public:
  OutputWindow(std::ostream* stream, std::function<void()> clear)
      : m_stream(stream), m_clear(std::move(clear)) {}
  std::ostream* getOutputStream() override { return m_stream; }
  void clearOutputWindow() override {
    if (m_clear) m_clear();
  }

 private:
  std::ostream* m_stream;
  std::function<void()> m_clear;
};

/// The undo manager of whatever project is open.
class OpenProjectUndo : public Undoer {
 public:
  explicit OpenProjectUndo(Model& model) : m_model(model) {}
  void startTransaction(const IViewParameters* view, int undoFlag) override {
    Project* project = m_model.project();
    if (!project) return;
    // Nobody holds on to units that were replaced in an operation that has ended.
    if (project->undo().depth() == 0) project->releaseRetired();
    project->undo().startTransaction(view, undoFlag);
  }
  void endTransaction() override {
    if (Project* project = m_model.project()) project->undo().endTransaction();
  }

 private:
  Model& m_model;
};

PropertyLayers loadedLayers(const HostOptions& options, const std::string& root,
                            Problems& problems) {
  PropertyLayers layers;
  layers.load(options.settings.value_or(standardSettingsFiles(root)), problems);
  return layers;
}

// More than any disk, and more than anybody lives.
constexpr std::uint64_t MostMegabytes = std::uint64_t{1} << 40U;
constexpr std::uint64_t MostDays = 36500;

/// A whole number of the section "General" up to the most, or what holds without it. Of a value
/// that is none is told.
std::uint64_t numberOf(const PropertyLayers& layers, const char* name, std::uint64_t otherwise,
                       std::uint64_t most, Problems& problems) {
  const std::optional<std::string> text = layers.setting("General", name);
  if (!text) return otherwise;
  std::uint64_t number = 0;
  const char* const end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  if (error == std::errc::result_out_of_range) return most;
  if (error == std::errc() && stop == end) return std::min(number, most);
  problems.push_back({name, "'" + *text + "' is no whole number from 0 on.",
                      std::to_string(otherwise) + " is taken."});
  return otherwise;
}

KeptLimits keptLimits(const PropertyLayers& layers, Problems& problems) {
  const KeptLimits standard;
  return {
      numberOf(layers, "KeptCopiesMegabytes", standard.bytes >> 20U, MostMegabytes, problems)
          << 20U,
      static_cast<unsigned>(numberOf(layers, "KeptCopiesDays", standard.days, MostDays, problems))};
}

}  // namespace

struct ReferenceHost::Parts {
  explicit Parts(const HostOptions& options)
      : root(options.installationRoot.empty() ? findInstallationRoot() : options.installationRoot),
        layers(loadedLayers(options, root, problems)),
        catalogue(root, options.language.empty() ? userLanguage() : options.language,
                  [this](const Problem& problem) { tell(problem); }),
        model(layers),
        environment(root,
                    [this](const std::string& section, const std::string& name) {
                      return layers.setting(section, name);
                    }),
        messages(catalogue, options.door,
                 options.seenMessagesFile.value_or(standardSeenMessagesFile())),
        outputWindow(options.output, options.clearOutput),
        undo(model),
        trace(options.traceLog, options.traceObserver),
        givenGuard(options.faultGuard),
        progress(options.progress),
        trustedCommands(layers, trustFileBeside(layers.files().userFile)),
        kept(
            [this] {
              const Project* open = model.project();
              return open ? open->getProjectDirectory() : std::string();
            },
            keptLimits(layers, problems)),
        onlyPlans(options.onlyPlans),
        guarded(options.processes ? *options.processes : processes,
                [this](const std::string& command) { return objectionTo(command); }) {
    processes.setChildEnvironment(options.childEnvironment);
    processes.setWatch(options.childWatch);
    removeStaleTempFiles(environment.omGetTempDir());
    if (!trace.error().empty()) {
      problems.push_back({options.traceLog, trace.error(), "No trace log is written."});
    }
  }

  /// A problem of which nobody knew when the host was made.
  void tell(const Problem& problem) {
    problems.push_back(problem);
    messages.notifyUser(sentence(problem), 0);
  }

  std::string adviceForTrust() {
    const Project* open = model.project();
    return catalogue.format(MessageNumber::CommandsNotTrusted,
                            {open ? open->getFullFileName() : std::string()});
  }
  std::optional<std::string> objectionTo(const std::string& command) {
    if (onlyPlans) return std::nullopt;
    if (!trustedCommands.isTrusted()) return adviceForTrust();
    if (holdsSecret(command)) return catalogue.text(MessageNumber::PasswordInCommand);
    return std::nullopt;
  }

  Problems problems;
  std::string root;
  PropertyLayers layers;
  MessageCatalogue catalogue;
  Model model;
  Environment environment;
  UserMessages messages;
  PatternEngine patterns;
  Processes processes;
  OutputWindow outputWindow;
  OpenProjectUndo undo;
  TraceLog trace;
  FaultGuard faultGuard;
  CSignal2Exception* givenGuard;
  Registry registry;
  Libraries libraries;
  QuickReload quickReload;
  IProgress* progress;
  CommandTrust trustedCommands;
  KeptCopies kept;
  bool onlyPlans;
  GuardedProcesses guarded;
};

ReferenceHost::ReferenceHost(const HostOptions& options)
    : m_parts(std::make_unique<Parts>(options)) {}

ReferenceHost::~ReferenceHost() = default;

std::optional<std::string> ReferenceHost::open(const std::string& directoryOrFile) {
  return m_parts->model.open(directoryOrFile);
}

void ReferenceHost::close() {
  m_parts->model.close();
}

void ReferenceHost::closeForExit() {
  m_parts->model.leaveToSystem();
}

Project* ReferenceHost::project() {
  return m_parts->model.project();
}

PropertyLayers& ReferenceHost::properties() {
  return m_parts->layers;
}

Problems ReferenceHost::save() {
  Project* open = project();
  return open ? open->saveModified() : Problems();
}

const Problems& ReferenceHost::problems() const {
  return m_parts->problems;
}

const std::string& ReferenceHost::installationRoot() const {
  return m_parts->root;
}

const MessageCatalogue& ReferenceHost::catalogue() const {
  return m_parts->catalogue;
}

CommandTrust& ReferenceHost::trust() {
  return m_parts->trustedCommands;
}

KeptCopies& ReferenceHost::kept() {
  return m_parts->kept;
}

std::string ReferenceHost::trustAdvice() {
  return m_parts->adviceForTrust();
}

void ReferenceHost::requestCancel() noexcept {
  m_parts->processes.requestCancel();
}

void ReferenceHost::resetCancel() noexcept {
  m_parts->processes.resetCancel();
}

IModel& ReferenceHost::model() {
  return m_parts->model;
}
IEnvironment& ReferenceHost::environment() {
  return m_parts->environment;
}
IUserMessages& ReferenceHost::messages() {
  return m_parts->messages;
}
IPatternEngine& ReferenceHost::patterns() {
  return m_parts->patterns;
}

IProcesses* ReferenceHost::processes() {
  return &m_parts->guarded;
}

IAbstractCMManager* ReferenceHost::cmManager() {
  return &m_parts->outputWindow;
}
Undoer* ReferenceHost::undoer() {
  return &m_parts->undo;
}
LogTrace* ReferenceHost::trace() {
  return &m_parts->trace;
}
CSignal2Exception* ReferenceHost::faultGuard() {
  return m_parts->givenGuard != nullptr ? m_parts->givenGuard : &m_parts->faultGuard;
}
IRegistry* ReferenceHost::registry() {
  return &m_parts->registry;
}
ILibraries* ReferenceHost::libraries() {
  return &m_parts->libraries;
}
IProgress* ReferenceHost::progress() {
  return m_parts->progress;
}
IKeptCopies* ReferenceHost::keptCopies() {
  return m_parts->onlyPlans ? nullptr : &m_parts->kept;
}
QuickATMFacade* ReferenceHost::quickReload() {
  return &m_parts->quickReload;
}

std::unique_ptr<ATMFacade> ReferenceHost::createATMFacade(IUnit* owner) {
  UnitCore* unit = UnitCore::of(owner);
  if (!unit) return nullptr;
  return std::make_unique<FileAdder>(unit->project(), unit->record().folder->path);
}

std::unique_ptr<ATMFacade> ReferenceHost::createATMFacade(const std::string& directory) {
  Project* open = project();
  return open ? std::make_unique<FileAdder>(*open, directory) : nullptr;
}

std::unique_ptr<CCMFileCompare> ReferenceHost::createFileCompare(const std::string& fullFileName) {
  return std::make_unique<FileCompare>(fullFileName);
}

std::unique_ptr<CMVDYHandler> ReferenceHost::createModelFileHandler(
    const std::string& fullFileName) {
  return std::make_unique<ModelFileHandler>(fullFileName);
}

}  // namespace veldra::host
