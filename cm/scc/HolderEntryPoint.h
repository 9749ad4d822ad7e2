#pragma once

#include "cm/scc/interface/SccTypes.h"

/// An entry point beyond the published interface: the status word says that a file is out, but not
/// to whom. A provider that knows may export this; without it the holder stays empty. A provider
/// that does so promises to set `SCC_STATUS_MODIFIED` for every file that differs from what was
/// checked out.
namespace veldra::scc {

extern "C" {

/// One file and who has it out. Both texts live for the length of the call. Return non-zero to go
/// on.
using HOLDERFUNC = BOOL(SCC_CALL*)(LPVOID callerData, LPCSTR fileName, LPCSTR holder);

/// Calls `report` for each of the files that somebody has out, with the name that was passed in.
using SccQueryHoldersFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* files,
                                          HOLDERFUNC report, LPVOID callerData);

}  // extern "C"

}  // namespace veldra::scc
