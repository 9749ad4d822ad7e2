#pragma once

#include <string>

#include "providers/subversion/session/Client.h"

namespace veldra::subversion {

/// The folder of a repository that a text means: a URL, or the absolute path of one on disk. Empty
/// for any other text, for example a mere name.
std::string urlFrom(const std::string& text);

/// Whether the store has that folder. Throws when the store cannot be reached; a repository on disk
/// that is not there is no failure.
[[nodiscard]] bool isFolderInStore(Client& client, const std::string& url);

/// Whether the URL is one of a repository on disk.
[[nodiscard]] bool isOnDisk(const std::string& url);

/// Makes the folder, and on disk the repository too. The repository is the folder above one named
/// `trunk`, otherwise the folder itself, unless there is one already further up.
void createProject(Client& client, const std::string& url, const char* comment);

/// Root and UUID of the repository that a URL belongs to.
struct Repository {
  std::string root;
  std::string uuid;
};
Repository repositoryOf(Client& client, const std::string& url);

}  // namespace veldra::subversion
