#pragma once

#include <string>

namespace veldra::host {

enum class StandardStream { Input, Output, Error };

/// Whether a person is looking at that stream of this program.
[[nodiscard]] bool isTerminal(StandardStream stream);

/// Makes the terminal take UTF-8 and the signs that move the cursor, where it has to be asked.
void prepareTerminal();

/// Sets a variable of this program's own environment; null removes it. Only while no other thread
/// runs.
void setVariable(const char* name, const char* value);

/// The file that a program's name starts, as child processes look it up; empty when there is none.
[[nodiscard]] std::string locateProgram(const std::string& name);

/// Whether this user may make files in the folder.
[[nodiscard]] bool canWriteInto(const std::string& folder);

/// The number of this process.
[[nodiscard]] long processNumber();

/// Whether there is a process of that number; true when it cannot be told.
[[nodiscard]] bool isProcessAlive(long number);

}  // namespace veldra::host
