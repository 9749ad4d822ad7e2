#pragma once

#include <string>

namespace veldra::host {

/// A name that no other temporary of this process has: ".veldra-cm-PROCESS-COUNT.tmp". By the
/// process `removeStaleTemporaries` sees whether somebody still works on it.
[[nodiscard]] std::string nextTemporaryName();

}  // namespace veldra::host
