#pragma once

#include <cstdint>

/// The convention of every entry point and every callback. The published pages name none; what a
/// compiler without a keyword does is __cdecl, which alone exports undecorated names. Only 32-bit
/// x86 Windows knows more than one. Source: "__cdecl", "Decorated Names".
#if defined(_WIN32) && (defined(_M_IX86) || defined(__i386__))
#define SCC_CALL __cdecl
#else
#define SCC_CALL
#endif

/// Lets a provider's entry point be found by its plain name.
#if defined(_WIN32)
#define SCC_EXPORT __declspec(dllexport)
#else
#define SCC_EXPORT __attribute__((visibility("default")))
#endif

/// The interface between a program and a source-control provider, in types of fixed width. Strings
/// are bytes that end with NUL: the system's code page on Windows, UTF-8 elsewhere.
/// Source for the types: "Windows Data Types"; for their use: one page per function.
namespace veldra::scc {

using LONG = std::int32_t;  ///< 32 bits everywhere; never C's `long`, which has 64 on LP64 systems.
using DWORD = std::uint32_t;
using BOOL = int;  ///< Test for non-zero, not for 1.
using LPLONG = LONG*;
using LPBOOL = BOOL*;
using LPVOID = void*;
using LPSTR = char*;
using LPCSTR = const char*;

/// A window of the calling program, as parent of the provider's dialogs. Null: no dialogs wanted.
/// Opaque here, so that no system header is needed; on Windows a cast from its own handle type.
using HWND = void*;

/// Result of an entry point, one of `SccResult`: 0 success, negative error, positive information.
/// Its width is not published; a negative 32-bit number fits every published value.
using SCCRTN = LONG;

/// Options of one command, of a form that only the provider knows.
/// Source: "SccGetCommandOptions", which names the type and leaves it undefined.
using LPCMDOPTS = void*;

}  // namespace veldra::scc
