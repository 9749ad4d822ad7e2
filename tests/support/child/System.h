#pragma once

#include <string>
#include <vector>

namespace veldra::test {

/// Line ends are written as they are.
void useBinaryStreams();

long ownNumber();

/// The files that the process has open, its three streams among them.
int openFiles();

/// Writes where no memory is.
void crash();

/// Starts the program with these arguments and the same streams and does not wait. 0, or 98.
int spawn(const std::string& program, const std::vector<std::string>& arguments);

}  // namespace veldra::test
