#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/compare/ModelMerge.h"

namespace veldra::host::compare {

/// A run of lines that one text has in place of a run of the other; either may be empty.
struct Hunk {
  std::size_t first;  ///< The first line of the run, counted from 0.
  std::size_t firstCount;
  std::size_t second;
  std::size_t secondCount;
  bool operator==(const Hunk&) const = default;
};

using Lines = std::vector<std::string_view>;

/// The lines of a text, each with its end; the last one may have none.
Lines linesOf(std::string_view text);

/// The fewest runs of lines that turn one text into the other, found in linear space. Texts that
/// have next to nothing in common are told apart roughly rather than slowly.
std::vector<Hunk> textDifferences(const Lines& first, const Lines& second);

/// The first text with the runs of the second one where that side was chosen; choices that are
/// missing count as the first side.
std::string mergedText(const Lines& first, const Lines& second, const std::vector<Hunk>& hunks,
                       const std::vector<Side>& choices);

}  // namespace veldra::host::compare
