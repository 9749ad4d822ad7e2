#pragma once

#include <functional>
#include <string>

#include "providers/subversion/session/Client.h"

namespace veldra::subversion {

enum class StoreIsAsked { No, Yes };

using StatusReceiver = std::function<void(const char* path, const svn_client_status_t& status)>;

/// Reports every file and directory below `path` to that depth, ignored ones included. A path that
/// belongs to no working copy has nothing below it.
void readStatus(Client& client, const std::string& path, svn_depth_t depth, StoreIsAsked store,
                const StatusReceiver& receiver);

}  // namespace veldra::subversion
