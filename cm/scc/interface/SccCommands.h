#pragma once

#include "cm/scc/interface/SccTypes.h"

namespace veldra::scc {

/// The commands that may have options of their own. Source: "Command Code Enumerator", which lists
/// them without numbers; by the rules of C they count from 0.
enum SCCCOMMAND {
  SCC_COMMAND_GET = 0,
  SCC_COMMAND_CHECKOUT = 1,
  SCC_COMMAND_CHECKIN = 2,
  SCC_COMMAND_UNCHECKOUT = 3,
  SCC_COMMAND_ADD = 4,
  SCC_COMMAND_REMOVE = 5,
  SCC_COMMAND_DIFF = 6,
  SCC_COMMAND_HISTORY = 7,
  SCC_COMMAND_RENAME = 8,
  SCC_COMMAND_PROPERTIES = 9,
  SCC_COMMAND_OPTIONS = 10,  ///< The provider's own preferences.
};

/// Flags of the commands; 0 is none. Source: "Bitflags Used by Specific Commands".
enum SccCommandFlag : LONG {
  SCC_KEEP_CHECKEDOUT = 0x1000,  ///< Add, check-in.

  SCC_GET_ALL = 0x1,        ///< Get, check-out: the names are directories.
  SCC_GET_RECURSIVE = 0x2,  ///< Only together with `SCC_GET_ALL`.

  SCC_OP_CREATEIFNEW = 0x1,  ///< Open: make a project that is not there.
  SCC_OP_SILENTOPEN = 0x2,   ///< Open: ask nothing.

  SCC_PL_DIR = 0x1,  ///< Populate list: the names are directories.

  SCC_PDL_ONELEVEL = 0x0,  ///< Populate directory list.
  SCC_PDL_RECURSIVE = 0x1,
  SCC_PDL_INCLUDEFILES = 0x2,
};

/// Flags of a difference. At most one of the quick tests is given; then nothing is shown.
/// Source: "Bitflags Used by Specific Commands", "SccDiff".
enum SccDiffFlag : LONG {
  SCC_DIFF_IGNORECASE = 0x0002,
  SCC_DIFF_IGNORESPACE = 0x0004,
  SCC_DIFF_QD_CONTENTS = 0x0010,
  SCC_DIFF_QD_CHECKSUM = 0x0020,
  SCC_DIFF_QD_TIME = 0x0040,
  SCC_DIFF_QUICK_DIFF = 0x0070,  ///< Mask of the three; for testing only.
};

/// Types of added files, one word per file. BINARY and STORELATEST have each other's value on the
/// page "Bitflags Used by Specific Commands"; these are those of "SccAdd", whose series has no gap.
/// A program avoids the question by passing AUTO or TEXT.
enum SccFileType : LONG {
  SCC_FILETYPE_AUTO = 0x00,  ///< The provider finds out.
  SCC_FILETYPE_TEXT = 0x01,
  SCC_FILETYPE_BINARY = 0x02,
  SCC_ADD_STORELATEST = 0x04,
  SCC_FILETYPE_TEXT_ANSI = 0x08,
  SCC_FILETYPE_UTF8 = 0x10,
  SCC_FILETYPE_UTF16LE = 0x20,
  SCC_FILETYPE_UTF16BE = 0x40,
};

/// Options of `SccSetOption`, each followed by its values. Source: "SccSetOption".
enum SccOption : LONG {
  SCC_OPT_EVENTQUEUE = 1,
  SCC_OPT_EQ_DISABLE = 0,
  SCC_OPT_EQ_ENABLE = 1,
  SCC_OPT_USERDATA = 2,  ///< A pointer in 32 bits: not to be had where pointers are wider.
  SCC_OPT_HASCANCELMODE = 3,
  SCC_OPT_HCM_NO = 0,
  SCC_OPT_HCM_YES = 1,
  SCC_OPT_NAMECHANGEPFN = 4,  ///< A pointer in 32 bits, as above.
  SCC_OPT_SCCCHECKOUTONLY = 5,
  SCC_OPT_SCO_NO = 0,
  SCC_OPT_SCO_YES = 1,
  SCC_OPT_SHARESUBPROJ = 6,
};

/// Lengths of strings, without and with the final NUL. Source: "Restrictions on String Lengths".
enum SccLength : LONG {
  SCC_NAME_LEN = 31,
  SCC_NAME_SIZE = 32,
  SCC_AUXLABEL_LEN = 31,
  SCC_AUXLABEL_SIZE = 32,
  SCC_USER_LEN = 31,
  SCC_USER_SIZE = 32,
  SCC_PRJPATH_LEN = 300,
  SCC_PRJPATH_SIZE = 301,
  SCC_LOCALPATH_SIZE = 260,  ///< The pages say `_MAX_PATH`; its number: "Path Field Limits".
};

}  // namespace veldra::scc
