#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/compare/FileComparison.h"

namespace veldra::host::tandel {

/// One line of the two panes side by side.
struct PaneRow {
  static constexpr std::size_t None = static_cast<std::size_t>(-1);

  std::string first{};
  std::string second{};
  bool hasFirst = true;  ///< Otherwise the line is a gap on that side.
  bool hasSecond = true;
  std::size_t difference = None;  ///< Which of the differences it shows.
};

/// What the panes show: of models every element with its attributes, of texts every line. What
/// belongs together stands in one row. Nothing of files that are no text.
std::vector<PaneRow> paneRows(const compare::FileComparison& comparison);

}  // namespace veldra::host::tandel
