#pragma once

namespace veldra::host {

enum class StandardStream { Input, Output, Error };

/// Whether a person is looking at that stream of this program.
[[nodiscard]] bool isTerminal(StandardStream stream);

/// Sets a variable of this program's own environment. Only before other threads run.
void setVariable(const char* name, const char* value);

/// The number of this process.
[[nodiscard]] long processNumber();

/// Whether there is a process of that number; true when it cannot be told.
[[nodiscard]] bool isProcessAlive(long number);

}  // namespace veldra::host
