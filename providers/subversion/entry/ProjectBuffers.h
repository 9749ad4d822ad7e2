#pragma once

#include <cstddef>

#include "cm/scc/interface/SccCommands.h"

namespace veldra::subversion {

/// Room for project and auxiliary paths. The interface gives them `SCC_PRJPATH_SIZE`, yet there are
/// programs which pass a buffer for a path of the system, which is shorter.
inline constexpr std::size_t ProjectPathRoom = scc::SCC_LOCALPATH_SIZE;

}  // namespace veldra::subversion
