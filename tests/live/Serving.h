#pragma once

#include <optional>
#include <string>

#include "tests/live/Job.h"
#include "tests/live/Server.h"

namespace veldra::live {

/// Serves the archive of a job to the users alice and bob, and returns its address.
using Serve = std::string (*)(Job& job, std::optional<Server>& server);

std::string serveSubversion(Job& job, std::optional<Server>& server);
std::string serveGit(Job& job, std::optional<Server>& server);
std::string serveMercurial(Job& job, std::optional<Server>& server);
std::string serveCvs(Job& job, std::optional<Server>& server);
/// For tools whose users share a directory.
std::string shareDirectory(Job& job, std::optional<Server>& server);

}  // namespace veldra::live
