#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace veldra::test {

/// One include line of a source file. Paths are relative to the root of the tree, with slashes.
struct Include {
  std::string file;
  int line = 0;
  std::string header;  ///< As written, without quotes or brackets.
  bool angled = false;
  std::string resolved;  ///< The file of the tree that a quoted name stands for; empty when none.
};

/// Every include in the headers and sources below `rooms` of a tree.
std::vector<Include> readIncludes(const std::filesystem::path& root,
                                  const std::vector<std::string>& rooms);

/// The includes that are not allowed where they stand, one line each: place, header and reason.
std::vector<std::string> forbiddenIncludes(const std::vector<Include>& includes);

/// Every circle of includes, as "a.h -> b.h -> a.h".
std::vector<std::string> includeCircles(const std::vector<Include>& includes);

}  // namespace veldra::test
