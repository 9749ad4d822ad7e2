#pragma once

namespace veldra::host {

enum class StandardStream { Input, Output, Error };

/// Whether a person is looking at that stream of this program.
[[nodiscard]] bool isTerminal(StandardStream stream);

/// Sets a variable of this program's own environment. Only before other threads run.
void setVariable(const char* name, const char* value);

}  // namespace veldra::host
