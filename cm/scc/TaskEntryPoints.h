#pragma once

#include "cm/scc/interface/SccTypes.h"

/// Entry points beyond the published interface that a task-based provider may export. A task is
/// named by a text of at most `TaskNameSize` bytes with its NUL. A provider without them is no
/// task-based one; the module then never calls them.
namespace veldra::scc {

inline constexpr LONG TaskNameSize = 260;  ///< As for the other names that the module passes.

extern "C" {

/// One task of a list. The name lives for the length of the call. Return non-zero to go on.
using TASKLISTFUNC = BOOL(SCC_CALL*)(LPVOID callerData, LPCSTR taskName);

/// Calls `report` for every open task of the user.
using SccListTasksFn = SCCRTN SCC_CALL(LPVOID context, HWND window, TASKLISTFUNC report,
                                       LPVOID callerData);
/// The task that following check-outs and check-ins belong to. `taskName` has `TaskNameSize` bytes;
/// empty when there is none.
using SccGetDefaultTaskFn = SCCRTN SCC_CALL(LPVOID context, LPSTR taskName);
using SccSetTaskFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR taskName);
/// Makes a task of that name; `description` may be empty.
using SccCreateTaskFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR taskName,
                                        LPCSTR description);
/// The provider's own window about a task.
using SccShowTaskFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR taskName);
/// Checks in everything that belongs to a task.
using SccCheckinTaskFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR taskName,
                                         LPCSTR comment);

}  // extern "C"

}  // namespace veldra::scc
