#pragma once

namespace veldra::host {

#if defined(_WIN32)
/// Only administrators may make symbolic links, and the compiler's library makes none at all.
inline constexpr bool CanMakeLinks = false;
/// There are characters that no file name may hold, and names are UTF-8.
inline constexpr bool AnyByteInNames = false;
#else
inline constexpr bool CanMakeLinks = true;
inline constexpr bool AnyByteInNames = true;
#endif

inline constexpr char NoLinks[] = "no symbolic links can be made here";

}  // namespace veldra::host
