#pragma once

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "cm/core/ModuleState.h"
#include "cm/scc/SCCdll.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

/// Everything that the provider back end remembers between calls; `CMProperty` has the accessors.
struct ProviderState : BackEndMemory {
  using Contexts = std::vector<std::unique_ptr<pvContextStruct>>;

  SCCdll dll;
  std::string libraryPath;
  bool libraryFound = true;
  bool isConnected = false;
  scc::DWORD capabilities = 0;  ///< As the provider last reported them.
  int isReentrant = 0;
  int commentsCheckOut = 0;
  void* legacyContext = nullptr;
  void* options = nullptr;  ///< The provider's own block of command options.
  Contexts contexts;
  Contexts unlinked;  ///< Taken out of the registry; somebody may still point to them.
  std::vector<std::string> fileNames;
  std::unordered_set<std::string> fileNameIndex;  ///< Of the list above.
  std::string lastActivity;                       ///< Of the last batch; proposed for the next one.
};

/// That of the installed host.
ProviderState& providerState();

}  // namespace veldra
