#pragma once

#include "cm/scc/interface/SccTypes.h"

/// An entry point beyond the published interface: `SccGet` brings the newest version to the file's
/// own place alone, and from then on the provider takes what lies there for changes to that
/// version. A provider that exports this writes the version to another place instead. The file, and
/// what the provider remembers of it, stay as they are.
namespace veldra::scc {

extern "C" {

/// `target` is the full name of a file; one that is there is replaced. Its directory exists.
using SccGetToFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR file, LPCSTR target);

}  // extern "C"

}  // namespace veldra::scc
