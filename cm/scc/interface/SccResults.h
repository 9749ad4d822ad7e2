#pragma once

#include "cm/scc/interface/SccTypes.h"

namespace veldra::scc {

/// What an entry point returns. Source: "Error Codes".
enum SccResult : SCCRTN {
  SCC_I_SHARESUBPROJOK = 7,  ///< `SCC_OPT_SHARESUBPROJ` was accepted.
  SCC_I_FILEDIFFERS = 6,     ///< The local file differs from the stored one.
  SCC_I_RELOADFILE = 5,      ///< The local file changed: read it again.
  SCC_I_FILENOTAFFECTED = 4,
  SCC_I_PROJECTCREATED = 3,     ///< Opened, and made for it.
  SCC_I_OPERATIONCANCELED = 2,  ///< What was done before the cancel stays done.
  SCC_I_ADV_SUPPORT = 1,        ///< The command has options of its own.

  SCC_OK = 0,

  SCC_E_INITIALIZEFAILED = -1,
  SCC_E_UNKNOWNPROJECT = -2,
  SCC_E_COULDNOTCREATEPROJECT = -3,
  SCC_E_NOTCHECKEDOUT = -4,
  SCC_E_ALREADYCHECKEDOUT = -5,
  SCC_E_FILEISLOCKED = -6,
  SCC_E_FILEOUTEXCLUSIVE = -7,  ///< Another user has it out exclusively.
  SCC_E_ACCESSFAILURE = -8,     ///< The store could not be reached; worth another try.
  SCC_E_CHECKINCONFLICT = -9,
  SCC_E_FILEALREADYEXISTS = -10,
  SCC_E_FILENOTCONTROLLED = -11,
  SCC_E_FILEISCHECKEDOUT = -12,
  SCC_E_NOSPECIFIEDVERSION = -13,
  SCC_E_OPNOTSUPPORTED = -14,
  SCC_E_NONSPECIFICERROR = -15,
  SCC_E_OPNOTPERFORMED = -16,
  SCC_E_TYPENOTSUPPORTED = -17,
  SCC_E_VERIFYMERGE = -18,  ///< Merged; nothing was stored until the user has looked at it.
  SCC_E_FIXMERGE = -19,     ///< Merged with conflicts; nothing was stored.
  SCC_E_SHELLFAILURE = -20,
  SCC_E_INVALIDUSER = -21,
  SCC_E_PROJECTALREADYOPEN = -22,
  SCC_E_PROJSYNTAXERR = -23,
  SCC_E_INVALIDFILEPATH = -24,
  SCC_E_PROJNOTOPEN = -25,
  SCC_E_NOTAUTHORIZED = -26,
  SCC_E_FILESYNTAXERR = -27,
  SCC_E_FILENOTEXIST = -28,
  SCC_E_CONNECTIONFAILURE = -29,
  SCC_E_UNKNOWNERROR = -30,
  SCC_E_BACKGROUNDGETINPROGRESS = -31,
};

}  // namespace veldra::scc
