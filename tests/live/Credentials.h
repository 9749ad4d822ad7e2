#pragma once

#include <string>

#include "tests/live/Sandbox.h"

namespace veldra::live {

/// What svn keeps after a login for which it was told to, in the home that the folder of the
/// sandbox is. A server's realm begins with its address in angle brackets; that of a repository on
/// disk is its UUID, and it has no password.
void keepCredentials(const Sandbox& sandbox, const std::string& home, const std::string& realm,
                     const std::string& user, const std::string& password);

}  // namespace veldra::live
