#pragma once

#include "cm/scc/interface/SccTypes.h"

namespace veldra::scc {

/// What a provider can do, as `SccInitialize` reports it. Each bit guards the entry point of its
/// name. The word is handed over as a `LONG`; read it as unsigned, for bit 31 is used.
/// Source: "Capability Flags"; those of version 1.2: "What's New in API Version 1.2".
enum SccCapability : DWORD {
  SCC_CAP_REMOVE = 0x00000001,
  SCC_CAP_RENAME = 0x00000002,
  SCC_CAP_DIFF = 0x00000004,
  SCC_CAP_HISTORY = 0x00000008,
  SCC_CAP_PROPERTIES = 0x00000010,
  SCC_CAP_RUNSCC = 0x00000020,
  SCC_CAP_GETCOMMANDOPTIONS = 0x00000040,
  SCC_CAP_QUERYINFO = 0x00000080,
  SCC_CAP_GETEVENTS = 0x00000100,
  SCC_CAP_GETPROJPATH = 0x00000200,
  SCC_CAP_ADDFROMSCC = 0x00000400,
  SCC_CAP_COMMENTCHECKOUT = 0x00000800,
  SCC_CAP_COMMENTCHECKIN = 0x00001000,
  SCC_CAP_COMMENTADD = 0x00002000,
  SCC_CAP_COMMENTREMOVE = 0x00004000,
  SCC_CAP_TEXTOUT = 0x00008000,           ///< Writes to the text callback.
  SCC_CAP_CREATESUBPROJECT = 0x00010000,  ///< From 1.2.
  SCC_CAP_GETPARENTPROJECT = 0x00020000,  ///< From 1.2.
  SCC_CAP_BATCH = 0x00040000,             ///< From 1.2.
  SCC_CAP_DIRECTORYSTATUS = 0x00080000,   ///< From 1.2.
  SCC_CAP_DIRECTORYDIFF = 0x00100000,     ///< From 1.2.
  SCC_CAP_ADD_STORELATEST = 0x00200000,   ///< Can store a file without deltas.
  SCC_CAP_HISTORY_MULTFILE = 0x00400000,
  SCC_CAP_IGNORECASE = 0x00800000,   ///< In differences.
  SCC_CAP_IGNORESPACE = 0x01000000,  ///< In differences.
  SCC_CAP_POPULATELIST = 0x02000000,
  SCC_CAP_COMMENTPROJECT = 0x04000000,
  SCC_CAP_MULTICHECKOUT = 0x08000000,  ///< From 1.2.
  SCC_CAP_DIFFALWAYS = 0x10000000,     ///< Compares in every controlled state.
  SCC_CAP_GET_NOUI = 0x20000000,       ///< No dialog for a get; `SccGet` may still be called.
  SCC_CAP_REENTRANT = 0x40000000,      ///< Several projects at once. From 1.1.
  SCC_CAP_SCCFILE = 0x80000000,        ///< From 1.2.
};

/// Asked one at a time through `SccGetExtendedCapabilities`; plain numbers, not bits.
/// Source: "Capability Flags", "What's New in API Version 1.3".
enum SccExtendedCapability : LONG {
  SCC_EXCAP_CHECKOUT_LOCALVER = 1,
  SCC_EXCAP_BACKGROUND_GET = 2,
  SCC_EXCAP_ENUM_CHANGED_FILES = 3,
  SCC_EXCAP_POPULATELIST_DIR = 4,
  SCC_EXCAP_QUERYCHANGES = 5,
  SCC_EXCAP_ADD_FILES_FROM_SCC = 6,
  SCC_EXCAP_GET_USER_OPTIONS = 7,
  SCC_EXCAP_THREADSAFE_QUERY_INFO = 8,
  SCC_EXCAP_REMOVE_DIR = 9,
  SCC_EXCAP_DELETE_CHECKEDOUT = 10,
  SCC_EXCAP_RENAME_CHECKEDOUT = 11,
};

/// What `SccGetVersion` returns: major number in the high word, minor in the low one. The pages
/// contradict each other; this form also passes a plain test for "at least 0x0102".
/// Source: "SccGetVersion", "What's New in API Version 1.3".
enum SccVersion : LONG {
  SCC_VERSION_1_1 = 0x00010001,
  SCC_VERSION_1_2 = 0x00010002,
  SCC_VERSION_1_3 = 0x00010003,
};

}  // namespace veldra::scc
