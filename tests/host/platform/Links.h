#pragma once

namespace veldra::host {

/// Windows lets only administrators make symbolic links, and the compiler's library there makes
/// none at all.
#if defined(_WIN32)
inline constexpr bool CanMakeLinks = false;
#else
inline constexpr bool CanMakeLinks = true;
#endif

inline constexpr char NoLinks[] = "no symbolic links can be made here";

}  // namespace veldra::host
