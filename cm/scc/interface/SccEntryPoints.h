#pragma once

#include "cm/scc/interface/SccCallbacks.h"
#include "cm/scc/interface/SccCommands.h"
#include "cm/scc/interface/SccTypes.h"

/// The function type of every entry point, under its name with `Fn` behind it: a program casts what
/// it looked up to a pointer to it, a provider declares its own functions with it.
///
/// Common to all: `context` is what `SccInitialize` stored, `window` may be null (nothing is asked
/// then), names of files are absolute, `user` has `SCC_USER_SIZE` bytes and project and auxiliary
/// paths have `SCC_PRJPATH_SIZE`. The caller owns every buffer. For many files the result is
/// `SCC_OK` only when all succeeded, else the last error. Source: the page of each function.
namespace veldra::scc {

extern "C" {

// --- initialisation and project ---

/// The only question that needs no context, and the first one.
using SccGetVersionFn = LONG SCC_CALL();

/// Once per context. `providerName` and `auxPathLabel` have `SCC_NAME_SIZE` and
/// `SCC_AUXLABEL_SIZE` bytes; `capabilities` gets bits of `SccCapability`.
using SccInitializeFn = SCCRTN SCC_CALL(LPVOID* context, HWND window, LPCSTR callerName,
                                        LPSTR providerName, LPLONG capabilities, LPSTR auxPathLabel,
                                        LPLONG checkoutCommentLength, LPLONG commentLength);

/// Ends the context. Its project must be closed.
using SccUninitializeFn = SCCRTN SCC_CALL(LPVOID context);

/// Lets the user choose or make a project. `isNew` says on entry whether one may be made, on return
/// whether one was. `localPath` changes only when `mayChangePath` is non-zero.
using SccGetProjPathFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPSTR user, LPSTR projectName,
                                         LPSTR localPath, LPSTR auxProjPath, BOOL mayChangePath,
                                         LPBOOL isNew);

/// `projectName` is constant on the page, although a provider may fill it when it comes in empty.
/// Pass a whole writable buffer. The text callback must live until the project is closed.
using SccOpenProjectFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPSTR user,
                                         LPCSTR projectName, LPCSTR localPath, LPSTR auxProjPath,
                                         LPCSTR comment, LPTEXTOUTPROC textOut, LONG flags);

using SccCloseProjectFn = SCCRTN SCC_CALL(LPVOID context);

/// `option` and `value` are of `SccOption`.
using SccSetOptionFn = SCCRTN SCC_CALL(LPVOID context, LONG option, LONG value);

/// With null `options`: does the command have any (`SCC_I_ADV_SUPPORT`)? Else shows them, and
/// stores the provider's structure, which belongs to the provider.
using SccGetCommandOptionsFn = SCCRTN SCC_CALL(LPVOID context, HWND window, SCCCOMMAND command,
                                               LPCMDOPTS* options);

// --- files ---

using SccGetFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files, LONG flags,
                                 LPCMDOPTS options);
using SccCheckoutFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                      LPCSTR comment, LONG flags, LPCMDOPTS options);
/// The page types the names as `LPSTR*`; they are only read.
using SccCheckinFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                     LPCSTR comment, LONG flags, LPCMDOPTS options);
/// Local changes are lost.
using SccUncheckoutFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                        LONG flags, LPCMDOPTS options);
/// `flags` has one entry per file.
using SccAddFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                 LPCSTR comment, LPLONG flags, LPCMDOPTS options);
/// The local file stays.
using SccRemoveFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                    LPCSTR comment, LONG flags, LPCMDOPTS options);
/// In the store only: the caller renames the local file.
using SccRenameFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR file, LPCSTR newName);

// --- status and lists ---

/// `status` has one entry per file.
using SccQueryInfoFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* files, LPLONG status);
/// Takes one event out of the provider's queue; an empty name when there is none.
using SccGetEventsFn = SCCRTN SCC_CALL(LPVOID context, LPSTR file, LPLONG status, LPLONG remaining);
using SccPopulateListFn = SCCRTN SCC_CALL(LPVOID context, SCCCOMMAND command, LONG count,
                                          LPCSTR* files, POPLISTFUNC populate, LPVOID callerData,
                                          LPLONG status, LONG flags);

// --- display ---

using SccDiffFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR file, LONG flags,
                                  LPCMDOPTS options);
using SccHistoryFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files,
                                     LONG flags, LPCMDOPTS options);
using SccPropertiesFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR file);
using SccRunSccFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count, LPCSTR* files);
/// Called twice: with a destination folder as the only name, then with a null `count` to free.
using SccAddFromSccFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPLONG count, LPCSTR** files);

// --- version 1.2 ---

using SccBeginBatchFn = SCCRTN SCC_CALL();
using SccEndBatchFn = SCCRTN SCC_CALL();
using SccCreateSubProjectFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPSTR user,
                                              LPCSTR parentProject, LPCSTR name, LPSTR auxProjPath,
                                              LPSTR subProject);
using SccGetParentProjectPathFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPSTR user,
                                                  LPCSTR project, LPSTR auxProjPath,
                                                  LPSTR parentProject);
/// `status` gets `SccDirStatus`, one entry per directory.
using SccDirQueryInfoFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* directories,
                                          LPLONG status);
using SccDirDiffFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPCSTR directory, LONG flags,
                                     LPCMDOPTS options);
using SccIsMultiCheckoutEnabledFn = SCCRTN SCC_CALL(LPVOID context, LPBOOL enabled);
using SccWillCreateSccFileFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* files,
                                               LPBOOL willCreate);

// --- version 1.3; `SccRemoveDir` is named in the pages, its parameters are not ---

/// `capability` is one of `SccExtendedCapability`.
using SccGetExtendedCapabilitiesFn = SCCRTN SCC_CALL(LPVOID context, LONG capability,
                                                     LPBOOL supported);
using SccGetUserOptionFn = SCCRTN SCC_CALL(LPVOID context, LONG option, LPLONG value);
/// Not on the thread that loaded the provider. Returns when all is done.
using SccBackgroundGetFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* files, LONG flags,
                                           LONG operationId);
/// `different` has one entry per file; non-zero when it differs from the store.
using SccEnumChangedFilesFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LONG count,
                                              LPCSTR* files, LPLONG different);
using SccQueryChangesFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* files,
                                          QUERYCHANGESFUNC report, LPVOID callerData);
using SccPopulateDirListFn = SCCRTN SCC_CALL(LPVOID context, LONG count, LPCSTR* directories,
                                             POPDIRLISTFUNC populate, LPVOID callerData,
                                             LONG flags);
/// The one irregular spelling.
using SccAddFilesFromSCCFn = SCCRTN SCC_CALL(LPVOID context, HWND window, LPSTR user,
                                             LPSTR auxProjPath, LONG count, LPCSTR* files,
                                             LPCSTR destination, LPCSTR comment, LPBOOL results);

}  // extern "C"

}  // namespace veldra::scc
