#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cm/core/CMFacade.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/CMTranscation.h"
#include "cm/host/IDObject.h"
#include "cm/templates/ExpansionLimits.h"

namespace veldra {

/// Which back end the active project selects, computed once per project.
struct BackEndSelection {
  std::unique_ptr<IHandle> project;  ///< The project that it was computed for.
  bool computed = false;
  int usesProvider = 0;
  bool loadFromDM = false;       ///< The project's load mode, kept beside the selection.
  bool providerLocated = false;  ///< The provider library has been looked for.
};

/// The slots that the host fills through `CMFacade`.
struct FacadeSlots {
  CMFacade::SaveCallback save;
  CMFacade::ReloadCallback reload;
  IMainFrame* reloadParameter = nullptr;
  CMFacade::ReloadCallback afterReload;
  IMainFrame* afterReloadParameter = nullptr;
};

/// What a back end remembers, in a form that only it knows.
struct BackEndMemory {
  virtual ~BackEndMemory() = default;
};

/// What the dialogs remember between two openings.
struct DialogMemory {
  std::string viewMode;
  std::int32_t sortColumn = 1;
  std::map<std::string, std::int32_t> itemSortColumns;  ///< Of the lists of archive items.
  std::map<int, std::string> unusedComments;            ///< By command.
};

/// Everything that the module remembers between calls. Only the host's user-interface thread uses
/// it.
struct ModuleState {
  std::vector<CMTranscation*> transcations;  ///< The live ones, the newest last; not owned.
  std::size_t openUndos = 0;                 ///< How many of them are inside one of the host.
  CMTxnGlobalState notices;
  CMOutputer mainOutputer;
  std::ostream* outputStream = nullptr;
  std::ostream* windowStream = nullptr;  ///< The host's window, as it was last seen.

  BackEndSelection backEnd;
  std::string sccToolName;
  bool providerLoaded = false;
  std::unique_ptr<BackEndMemory> provider;  ///< Made by the provider back end at its first use.
  std::uint32_t providerBreakdowns = 0;     ///< Calls that ended in a crash or an exception.
  int showCMStatus = 0;
  bool saveOnCheckoutDue = true;  ///< See `CMProperty::saveOnCheckout`.

  ExpansionUse expansion;

  std::uint32_t checkoutGuards = 0;
  std::string rememberedAnswer;  ///< "yestoall", "notoall", "yes", "no", "cancel" or empty.

  std::string partialLoadAnswer;  ///< The same, about loading units into the model.

  FacadeSlots slots;
  DialogMemory dialogs;
};

/// The state that belongs to the installed host; another host starts with a fresh one.
ModuleState& moduleState();

}  // namespace veldra
