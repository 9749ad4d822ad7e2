#pragma once

#include <optional>
#include <string>

#include "host/cli/Session.h"

namespace veldra::host::cli {

/// Connects the project to a project of the provider's archive: the one that `place` names, else
/// the one that it was connected to, else the one that the provider chooses or makes. Nothing on
/// success; otherwise why not.
[[nodiscard]] std::optional<std::string> connectToProvider(Session& session,
                                                           const std::optional<std::string>& place);

/// The archive project that the project is connected to; empty for none.
std::string connectedProject(Session& session);

}  // namespace veldra::host::cli
