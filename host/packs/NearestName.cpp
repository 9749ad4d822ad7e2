#include "host/packs/NearestName.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "host/model/PathNames.h"

namespace veldra::host {

namespace {

/// Levenshtein's distance.
std::size_t distance(const std::string& one, const std::string& other) {
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < one.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < other.size(); ++j) {
      const std::size_t change = diagonal + (one[i] == other[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({change, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string nearestName(std::string_view wrong, std::span<const std::string> names) {
  // Longer ones are no slips of the pen, and would take long.
  constexpr std::size_t LongestName = 64;
  if (wrong.size() > LongestName) return {};
  std::size_t best = std::max<std::size_t>(2, wrong.size() / 3) + 1;
  std::string nearest;
  for (const std::string& name : names) {
    const std::size_t changes = distance(lowerCase(wrong), lowerCase(name));
    if (changes >= best) continue;
    best = changes;
    nearest = name;
  }
  return nearest;
}

}  // namespace veldra::host
