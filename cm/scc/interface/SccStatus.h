#pragma once

#include "cm/scc/interface/SccTypes.h"

namespace veldra::scc {

/// The status word of a file: bits, except `SCC_STATUS_INVALID`, which is to be compared first.
/// Source: "File Status Code Enumerator"; second source: "__SccStatus Enum".
enum SccStatus : LONG {
  SCC_STATUS_INVALID = -1,  ///< Unknown. Not a set of bits.
  SCC_STATUS_NOTCONTROLLED = 0x0000,
  SCC_STATUS_CONTROLLED = 0x0001,
  SCC_STATUS_CHECKEDOUT = 0x0002,    ///< By this user, into this folder; implies OUTBYUSER.
  SCC_STATUS_OUTOTHER = 0x0004,      ///< By another user.
  SCC_STATUS_OUTEXCLUSIVE = 0x0008,  ///< By whomever, so that nobody else can have it.
  SCC_STATUS_OUTMULTIPLE = 0x0010,
  SCC_STATUS_OUTOFDATE = 0x0020,  ///< The store has a newer version.
  SCC_STATUS_DELETED = 0x0040,    ///< Deleted from the project.
  SCC_STATUS_LOCKED = 0x0080,     ///< No further versions are allowed.
  SCC_STATUS_MERGED = 0x0100,     ///< Merged, not yet verified.
  SCC_STATUS_SHARED = 0x0200,
  SCC_STATUS_PINNED = 0x0400,
  SCC_STATUS_MODIFIED = 0x0800,
  SCC_STATUS_OUTBYUSER = 0x1000,  ///< By this user, into whichever folder.
  SCC_STATUS_NOMERGE = 0x2000,    ///< Never mergeable.
  SCC_STATUS_RESERVED_1 = 0x4000,
  SCC_STATUS_RESERVED_2 = 0x8000,
};

/// The status of a directory. Source: "Directory Status Code Enumerator".
enum SccDirStatus : LONG {
  SCC_DIRSTATUS_INVALID = -1,
  SCC_DIRSTATUS_NOTCONTROLLED = 0,
  SCC_DIRSTATUS_CONTROLLED = 1,
  SCC_DIRSTATUS_EMPTYPROJ = 2,  ///< Controlled, with nothing in it.
};

}  // namespace veldra::scc
