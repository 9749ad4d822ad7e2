#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include "cm/scc/HolderEntryPoint.h"
#include "cm/scc/PDLL.h"
#include "cm/scc/SccInterface.h"
#include "cm/scc/StoredFileEntryPoint.h"
#include "cm/scc/TaskEntryPoints.h"

namespace veldra {

/// A provider that crashed, or was to be called after it had. The text is for the user.
class ProviderFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What is known of one entry point before it gets its type.
struct EntryName {
  /// Of a name that has been looked up, found or not.
  static constexpr int Resolved = 3456;

  const char* name;
  EntryPoint found = nullptr;
  int marker = 0;
  unsigned generation = 0;  ///< Of the library that it was looked up in.
};

/// The same with the type that `SccInterface.h` gives it.
template <class Function>
struct EntrySlot : EntryName {
  using Type = Function;
};

/// The provider library: its entry points, each looked up at its first call and kept.
///
/// A missing library or entry point makes a call return 0, which is the provider's code for
/// success: a provider that cannot do something must not stop what can be done without it. Callers
/// that want to tell the user ask `has` first.
///
/// A call runs under the host's fault guard, on the caller's thread unless that takes it elsewhere.
/// A provider that crashes, or lets an exception out, is reported as `ProviderFailure` and never
/// called again in this process: every later call throws the same. One that hangs cannot be called
/// back; the host is told of every call's begin and end (`IProgress`) so that it can tell the user,
/// and may let its guard make the call on another thread, as long as that is always the same one:
/// providers keep state of it.
class SCCdll : public PDLL {
 public:
  template <class Function>
  bool has(EntrySlot<Function>& slot) {
    // A broken provider lacks nothing: what is wrong with it is to be told, not that.
    refuseIfBroken();
    return resolve(slot) != nullptr;
  }

  template <class Function, class... Arguments>
  scc::SCCRTN call(EntrySlot<Function>& slot, Arguments... arguments) {
    refuseIfBroken();
    auto* const function = reinterpret_cast<Function*>(resolve(slot));
    if (function == nullptr) return 0;
    scc::SCCRTN result = 0;
    auto body = [&] { result = function(arguments...); };
    guarded(slot.name, std::ref(body));
    return result;
  }

  EntrySlot<scc::SccInitializeFn> SccInitialize{{"SccInitialize"}};
  EntrySlot<scc::SccUninitializeFn> SccUninitialize{{"SccUninitialize"}};
  EntrySlot<scc::SccGetProjPathFn> SccGetProjPath{{"SccGetProjPath"}};
  EntrySlot<scc::SccOpenProjectFn> SccOpenProject{{"SccOpenProject"}};
  EntrySlot<scc::SccCloseProjectFn> SccCloseProject{{"SccCloseProject"}};
  EntrySlot<scc::SccSetOptionFn> SccSetOption{{"SccSetOption"}};
  EntrySlot<scc::SccQueryInfoFn> SccQueryInfo{{"SccQueryInfo"}};
  EntrySlot<scc::SccPopulateListFn> SccPopulateList{{"SccPopulateList"}};
  EntrySlot<scc::SccCheckinFn> SccCheckin{{"SccCheckin"}};
  EntrySlot<scc::SccCheckoutFn> SccCheckout{{"SccCheckout"}};
  EntrySlot<scc::SccUncheckoutFn> SccUncheckout{{"SccUncheckout"}};
  EntrySlot<scc::SccGetFn> SccGet{{"SccGet"}};
  EntrySlot<scc::SccHistoryFn> SccHistory{{"SccHistory"}};
  EntrySlot<scc::SccPropertiesFn> SccProperties{{"SccProperties"}};
  EntrySlot<scc::SccGetCommandOptionsFn> SccGetCommandOptions{{"SccGetCommandOptions"}};
  EntrySlot<scc::SccAddFn> SccAdd{{"SccAdd"}};
  EntrySlot<scc::SccRemoveFn> SccRemove{{"SccRemove"}};
  EntrySlot<scc::SccRenameFn> SccRename{{"SccRename"}};
  EntrySlot<scc::SccDirQueryInfoFn> SccDirQueryInfo{{"SccDirQueryInfo"}};
  EntrySlot<scc::SccCheckinTaskFn> SccCheckinTask{{"SccCheckinTask"}};
  EntrySlot<scc::SccSetTaskFn> SccSetTask{{"SccSetTask"}};
  EntrySlot<scc::SccGetDefaultTaskFn> SccGetDefaultTask{{"SccGetDefaultTask"}};
  EntrySlot<scc::SccCreateTaskFn> SccCreateTask{{"SccCreateTask"}};
  EntrySlot<scc::SccShowTaskFn> SccShowTask{{"SccShowTask"}};
  EntrySlot<scc::SccListTasksFn> SccListTasks{{"SccListTasks"}};
  EntrySlot<scc::SccQueryHoldersFn> SccQueryHolders{{"SccQueryHolders"}};
  EntrySlot<scc::SccGetToFn> SccGetTo{{"SccGetTo"}};

 private:
  EntryPoint resolve(EntryName& slot) const;
  void refuseIfBroken() const;
  void guarded(const char* name, const std::function<void()>& body);
  [[noreturn]] void breakDown(const char* name, const char* what);

  std::string m_breakdown;  ///< What the user was told when the provider crashed.
};

}  // namespace veldra
