#pragma once

#include <memory>
#include <string>

#include "cm/host/Host.h"
#include "host/platform/PatternEngine.h"
#include "tests/support/Journal.h"
#include "tests/support/MemoryEnvironment.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/MemoryLibraries.h"
#include "tests/support/MemoryMessages.h"
#include "tests/support/MemoryModel.h"
#include "tests/support/MemoryRegistry.h"
#include "tests/support/MemoryReload.h"
#include "tests/support/Recorders.h"
#include "tests/support/ScriptedProcesses.h"

namespace veldra::test {

/// A complete host in memory, put together from one part per facility. A test builds its model with
/// the parts, prepares answers, and looks at what the parts were told.
class MemoryHost : public Host {
 public:
  Journal journal;
  MemoryFiles files;
  MemoryModel memoryModel{journal, files};
  MemoryEnvironment memoryEnvironment{files};
  MemoryMessages memoryMessages;
  ScriptedProcesses scriptedProcesses{journal, memoryEnvironment, files};
  MemoryCMManager manager{journal};
  MemoryUndoer undo{journal};
  MemoryTrace traceLog;
  MemoryFaultGuard memoryFaultGuard;
  MemoryProgress memoryProgress;
  MemoryRegistry memoryRegistry;
  MemoryLibraries memoryLibraries;
  MemoryKeptCopies memoryKeptCopies;
  ReloadScript reloads;

  /// Where libraries come from: memory, unless a test loads real ones.
  ILibraries* loader = &memoryLibraries;
  /// What stands between a fault and the end of the process; tests of real faults need a real one.
  CSignal2Exception* guard = &memoryFaultGuard;

  /// Without them the host has only what every host must have.
  bool offersOptionalFacilities = true;

  IModel& model() override { return memoryModel; }
  IEnvironment& environment() override { return memoryEnvironment; }
  IUserMessages& messages() override { return memoryMessages; }
  IPatternEngine& patterns() override { return m_patterns; }

  IProcesses* processes() override { return offered(scriptedProcesses); }
  IAbstractCMManager* cmManager() override { return offered(manager); }
  Undoer* undoer() override { return offered(undo); }
  LogTrace* trace() override { return offered(traceLog); }
  CSignal2Exception* faultGuard() override { return offered<CSignal2Exception>(*guard); }
  IProgress* progress() override { return offered(memoryProgress); }
  IRegistry* registry() override { return offered(memoryRegistry); }
  ILibraries* libraries() override { return offered<ILibraries>(*loader); }
  IKeptCopies* keptCopies() override { return offered(memoryKeptCopies); }
  QuickATMFacade* quickReload() override { return offered(m_quickReload); }
  std::unique_ptr<ATMFacade> createATMFacade(IUnit* owner) override;
  std::unique_ptr<ATMFacade> createATMFacade(const std::string& directory) override;
  std::unique_ptr<CCMFileCompare> createFileCompare(const std::string& fullFileName) override;
  std::unique_ptr<CMVDYHandler> createModelFileHandler(const std::string& fullFileName) override;

 private:
  template <class Facility>
  Facility* offered(Facility& facility) {
    return offersOptionalFacilities ? &facility : nullptr;
  }

  host::PatternEngine m_patterns;
  MemoryQuickATM m_quickReload{journal, memoryModel, reloads};
};

}  // namespace veldra::test
