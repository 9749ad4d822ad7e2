#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/cli/Session.h"

namespace veldra::host::cli {

/// Where an archive lies: an address stays as it is, a local path becomes absolute. Ends the
/// command when no command line can carry it.
std::string archivePlace(const std::string& where);

/// Whether it is a path of this machine, not an address.
bool isLocalPlace(const std::string& place);

/// Whether it is one where nothing lies.
bool isToBeMade(const std::string& place);

/// Makes the archive by the tool's template for that, when it is to be made and the tool has such a
/// template. Nothing on success; otherwise why not.
[[nodiscard]] std::optional<std::string> createArchive(const std::string& place);

/// What a connection is to be made with. Whatever is not named is what the project has.
struct ConnectionRequest {
  std::optional<std::string> tool{};
  std::optional<std::string> place{};  ///< Of the archive.
};

/// Makes these the project's and connects the project. With a tool, an archive at a local path that
/// does not exist is made. Nothing on success; otherwise why not, and the project is as before.
[[nodiscard]] std::optional<std::string> connectProject(Session& session,
                                                        const ConnectionRequest& request);

/// Makes `place` the project's archive (nothing: the one that it has) and connects the project to
/// it. Nothing on success; otherwise why not.
[[nodiscard]] std::optional<std::string> connectToArchive(Session& session,
                                                          const std::optional<std::string>& place);

}  // namespace veldra::host::cli
