#pragma once

#include <istream>
#include <ostream>

namespace veldra::host::cli {

/// The streams of one run, and which of them a person is looking at.
struct Console {
  std::istream& in;
  std::ostream& out;           ///< Results, and nothing but results.
  std::ostream& err;           ///< Messages, questions and progress.
  bool asks = false;           ///< Questions can be answered: input and error output are terminals.
  bool showsProgress = false;  ///< The error output is a terminal.

  /// Takes the progress away from the line that it stands on.
  void clearProgress() {
    if (showsProgress) err << "\r\x1b[K" << std::flush;
  }
};

}  // namespace veldra::host::cli
