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

/// The folder of the running program's file; empty when the system does not tell.
[[nodiscard]] std::string programFolder();

/// Adds the program's own folder at the end of PATH, so that this program and what it starts find
/// the programs beside it. Whatever the user has on PATH comes first. Only before other threads
/// run.
void addOwnFolderToPath();

/// Whether this user may make files in the folder.
[[nodiscard]] bool canWriteInto(const std::string& folder);

/// Whether the file or folder itself, not what it may link to, is this user's own.
[[nodiscard]] bool belongsToUser(const std::string& path);

/// The number of this process.
[[nodiscard]] long processNumber();

/// Whether there is a process of that number; true when it cannot be told.
[[nodiscard]] bool isProcessAlive(long number);

}  // namespace veldra::host
