#pragma once

#include <string>
#include <vector>

#include "cm/core/CMTraitFacade.h"

namespace veldra {

/// The status of files and, from a provider that tells, who has them out. One answer per name. The
/// user is told of a failure: then the result is false.
bool queryFileStatus(const std::vector<std::string>& names, void* context,
                     std::vector<UnitStatus>& status);

}  // namespace veldra
