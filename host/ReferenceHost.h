#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "cm/host/Host.h"
#include "host/UserDoor.h"
#include "host/kept/KeptCopies.h"
#include "host/model/Problem.h"
#include "host/model/Project.h"
#include "host/model/PropertyLayers.h"
#include "host/platform/Processes.h"
#include "host/platform/TraceLog.h"
#include "host/resources/MessageCatalogue.h"
#include "host/trust/CommandTrust.h"

namespace veldra::host {

/// What a program gives the reference host. Pointers are not owned and must outlive the host.
struct HostOptions {
  std::string installationRoot;       ///< Below it lie packs and resources; empty: found by itself.
  std::ostream* output = nullptr;     ///< The CM output window; null for none.
  std::function<void()> clearOutput;  ///< Empties the CM output window; empty: it stays full.
  UserDoor* door = nullptr;           ///< Null: nobody is asked, nothing is overwritten.
  std::string traceLog;               ///< A file that trace lines are added to; empty for none.
  TraceLog::Observer traceObserver;   ///< Told every trace line; may be empty.
  IProgress* progress = nullptr;      ///< Follows operations unit by unit; null for none.
  IProcesses* processes =
      nullptr;  ///< In place of the real child processes, for example a dry run.
  CSignal2Exception* faultGuard = nullptr;  ///< In place of the host's own.
  ChildWatch* childWatch = nullptr;         ///< Follows real child processes; null for nobody.
  std::map<std::string, std::string> childEnvironment;  ///< Set for real child processes.
  std::string language;                                 ///< For messages; empty: the process's.
  std::optional<SettingsFiles> settings;                ///< In place of the standard places.
  std::optional<std::string> seenMessagesFile;          ///< In place of the standard place.
  bool onlyPlans = false;  ///< `processes` start nothing, so whatever the project brings may pass.
};

/// The reference host: a model on disk, its properties, and this machine's processes and files.
///
/// The program installs it with `installHost` and takes it out again before it dies.
class ReferenceHost : public Host {
 public:
  explicit ReferenceHost(const HostOptions& options);
  ~ReferenceHost() override;
  ReferenceHost(const ReferenceHost&) = delete;
  ReferenceHost& operator=(const ReferenceHost&) = delete;

  /// Opens the project of a directory, or that of a project file; the one that was open is closed.
  /// Nothing on success; otherwise what is wrong and the way out.
  [[nodiscard]] std::optional<std::string> open(const std::string& directoryOrFile);
  void close();
  /// The same for a program that ends next, and much faster.
  void closeForExit();
  /// The open project, or null.
  Project* project();
  PropertyLayers& properties();
  /// Writes the project and its units as far as they are modified. What could not be written stays
  /// modified and is returned.
  [[nodiscard]] Problems save();
  /// What was wrong with settings, tool packs, message files and the trace log.
  const Problems& problems() const;
  const std::string& installationRoot() const;
  /// The texts in the user's language.
  const MessageCatalogue& catalogue() const;
  /// What the open project brings to be run, and whether the user has trusted it. As long as he has
  /// not, `processes` starts nothing and says so.
  CommandTrust& trust();
  /// The copies of files of the open project that commands have overwritten.
  KeptCopies& kept();
  /// The sentence for commands that are not trusted, with the way out.
  std::string trustAdvice();
  /// Ends the running child process and lets no other start; may be called from a signal handler.
  /// Does nothing to processes that the options brought.
  void requestCancel() noexcept;
  /// Lets children start again after `requestCancel`.
  void resetCancel() noexcept;

  // --- Host ---
  IModel& model() override;
  IEnvironment& environment() override;
  IUserMessages& messages() override;
  IPatternEngine& patterns() override;
  IProcesses* processes() override;
  IAbstractCMManager* cmManager() override;
  Undoer* undoer() override;
  LogTrace* trace() override;
  CSignal2Exception* faultGuard() override;
  IRegistry* registry() override;
  ILibraries* libraries() override;
  IProgress* progress() override;
  IKeptCopies* keptCopies() override;
  QuickATMFacade* quickReload() override;
  std::unique_ptr<ATMFacade> createATMFacade(IUnit* owner) override;
  std::unique_ptr<ATMFacade> createATMFacade(const std::string& directory) override;
  std::unique_ptr<CCMFileCompare> createFileCompare(const std::string& fullFileName) override;
  std::unique_ptr<CMVDYHandler> createModelFileHandler(const std::string& fullFileName) override;

 private:
  struct Parts;
  std::unique_ptr<Parts> m_parts;
};

}  // namespace veldra::host
