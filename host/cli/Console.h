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
};

}  // namespace veldra::host::cli
