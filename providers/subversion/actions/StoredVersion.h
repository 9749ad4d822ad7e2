#pragma once

#include <svn_io.h>

#include <string>

#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Reads a file's newest version in the store as it would lie on the disk. The working copy need
/// not have the file. The stream stays open.
void readStoredVersion(Project& project, const std::string& file, svn_stream_t* stream);

/// Writes it to another place, whole or not at all.
void writeStoredVersion(Project& project, const std::string& file, const std::string& target);

}  // namespace veldra::subversion
