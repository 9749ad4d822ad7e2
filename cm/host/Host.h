#pragma once

#include <memory>
#include <string>

#include "cm/host/CMVDYHandler.h"
#include "cm/host/CSignal2Exception.h"
#include "cm/host/Export.h"
#include "cm/host/IAbstractCMManager.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IKeptCopies.h"
#include "cm/host/ILibraries.h"
#include "cm/host/IModel.h"
#include "cm/host/IProgress.h"
#include "cm/host/IRegistry.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/LogTrace.h"
#include "cm/host/Reload.h"
#include "cm/host/RunThread.h"
#include "cm/host/SPString.h"
#include "cm/host/Undoer.h"

namespace veldra {

/// Everything the module asks of the modelling tool that loads it. The references are what every
/// host must have; the rest may be left as it is, and the module does without.
class Host {
 public:
  virtual ~Host() = default;

  virtual IModel& model() = 0;
  virtual IEnvironment& environment() = 0;
  virtual IUserMessages& messages() = 0;
  virtual IPatternEngine& patterns() = 0;

  virtual IProcesses* processes() { return nullptr; }
  virtual IAbstractCMManager* cmManager() { return nullptr; }
  virtual Undoer* undoer() { return nullptr; }
  virtual LogTrace* trace() { return nullptr; }
  virtual CSignal2Exception* faultGuard() { return nullptr; }
  virtual IProgress* progress() { return nullptr; }
  /// Both are needed to find and load a source control provider; without them there is none.
  virtual IRegistry* registry() { return nullptr; }
  virtual ILibraries* libraries() { return nullptr; }
  virtual IKeptCopies* keptCopies() { return nullptr; }

  /// Reload services. Without them units keep what they had in memory, and a command that would
  /// need a reload reports the unit as not reloaded.
  virtual QuickATMFacade* quickReload() { return nullptr; }
  /// A facade that loads files beside `unit`, for the same owner.
  virtual std::unique_ptr<ATMFacade> createATMFacade(IUnit* unit) {
    (void)unit;
    return nullptr;
  }
  /// A facade that loads files of a directory.
  virtual std::unique_ptr<ATMFacade> createATMFacade(const std::string& directory) {
    (void)directory;
    return nullptr;
  }
  virtual std::unique_ptr<CCMFileCompare> createFileCompare(const std::string& fullFileName) {
    (void)fullFileName;
    return nullptr;
  }

  /// A handler for the model file of that full name. Null when the host keeps none.
  virtual std::unique_ptr<CMVDYHandler> createModelFileHandler(const std::string& fullFileName) {
    (void)fullFileName;
    return nullptr;
  }
};

/// Makes `host` the one that the module works with; null takes it away. The module does not own it:
/// it must live until it is replaced. Everything that the module remembers of the former host is
/// dropped. This is the only place where a host enters.
VELDRA_CM_EXPORT void installHost(Host* host);

/// The installed host, or null.
VELDRA_CM_EXPORT Host* installedHost();

/// A number that grows with every `installHost`: what was remembered under another one is stale.
unsigned hostGeneration();

}  // namespace veldra
