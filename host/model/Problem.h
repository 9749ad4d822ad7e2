#pragma once

#include <string>
#include <vector>

namespace veldra::host {

/// Something that is wrong with a file of a project. Problems are collected while everything else
/// goes on; each names the file, what is wrong with it and what the user can do.
struct Problem {
  std::string file;    ///< Absolute name where it is known.
  std::string what;    ///< A sentence without the file's name, for example "The file is empty."
  std::string wayOut;  ///< A sentence that says what to do about it.
};

using Problems = std::vector<Problem>;

/// The problem as one line: the file, what is wrong, the way out.
inline std::string sentence(const Problem& problem) {
  return problem.file + ": " + problem.what + " " + problem.wayOut;
}

}  // namespace veldra::host
