#pragma once

#include <string>

namespace veldra::host {

/// A file in which programs keep something about this user between runs: veldra-cm/NAME below
/// XDG_STATE_HOME or ~/.local/state. Empty when the user has no home.
std::string stateFile(const std::string& name);

}  // namespace veldra::host
