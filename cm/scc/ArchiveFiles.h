#pragma once

#include <string>
#include <vector>

#include "cm/scc/SccInterface.h"

namespace veldra {

/// The files that the provider has below a directory, by its absolute local names, each once. Only
/// those that the archive filter lets through; from a provider that cannot list, those of the
/// loaded units.
std::vector<std::string> archiveFilesBelow(const std::string& directory, scc::SCCCOMMAND command,
                                           void* context);

}  // namespace veldra
