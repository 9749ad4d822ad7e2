#pragma once

#include <string>

namespace veldra::subversion {

/// The name under which this user appears to a repository: `given` when there is one, else that of
/// the credentials which Subversion keeps for it, else the system's.
std::string userNameFor(const std::string& given, const std::string& rootUrl,
                        const std::string& uuid);

}  // namespace veldra::subversion
