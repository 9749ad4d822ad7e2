#pragma once

#include "cm/scc/interface/SccTypes.h"

namespace veldra::scc {

/// Kinds of text for the text callback, and its answers. Source: "Message Enumerator",
/// "LPTEXTOUTPROC". The messages of a background get have no published numbers and are left out;
/// answer an unknown kind with `SCC_MSG_RTN_OK` and leave its pointer alone.
enum SccMessage : LONG {
  SCC_MSG_RTN_CANCEL = -1,
  SCC_MSG_RTN_OK = 0,
  SCC_MSG_INFO = 1,  ///< To be kept. No line end at the end of a text.
  SCC_MSG_WARNING = 2,
  SCC_MSG_ERROR = 3,
  SCC_MSG_STATUS = 4,       ///< For the moment.
  SCC_MSG_DOCANCEL = 5,     ///< No text: shall I stop?
  SCC_MSG_STARTCANCEL = 6,  ///< No text: a command that can be cancelled begins.
  SCC_MSG_STOPCANCEL = 7,   ///< No text: it ended.
};

extern "C" {

/// Text, and one of `SccMessage`. STATUS and DOCANCEL only come to a program that has set
/// `SCC_OPT_HASCANCELMODE`. Source: "LPTEXTOUTPROC".
using LPTEXTOUTPROC = LONG(SCC_CALL*)(LPSTR text, LONG kind);

/// One file of a list. `addKeep` is 0 when the file is to leave the list. The name lives for the
/// length of the call. Return non-zero to go on. Source: "POPLISTFUNC".
using POPLISTFUNC = BOOL(SCC_CALL*)(LPVOID callerData, BOOL addKeep, LONG status, LPSTR fileName);

/// One directory or file that is in the store. Return `SCC_OK` (0!) to go on. Source:
/// "POPDIRLISTFUNC", which declares a BOOL and describes a result.
using POPDIRLISTFUNC = BOOL(SCC_CALL*)(LPVOID callerData, BOOL isFolder, LPCSTR name);

/// A change of name, in absolute names. Source: "OPTNAMECHANGEPFN".
using OPTNAMECHANGEPFN = void(SCC_CALL*)(LPVOID callerData, LPCSTR oldName, LPCSTR newName);

/// One name of `SccQueryChanges`. The numbers of `dwChangeType` are not published.
/// Source: "QUERYCHANGESFUNC".
struct QUERYCHANGESDATA {
  DWORD dwSize;  ///< Of this structure, in bytes.
  LPCSTR lpFileName;
  DWORD dwChangeType;
  LPCSTR lpLatestName;
};

/// Return `SCC_OK` (0!) to go on. Source: "QUERYCHANGESFUNC".
using QUERYCHANGESFUNC = BOOL(SCC_CALL*)(LPVOID callerData, QUERYCHANGESDATA* change);

}  // extern "C"

}  // namespace veldra::scc
