#pragma once

#include <string>

#include "cm/scc/SccInterface.h"

namespace veldra {

/// What the provider says: its return codes as messages, and its texts.
class SCCTextOutProc {
 public:
  /// How a text is shown; the first three are the provider's own kinds.
  enum Kind : unsigned long { Information = 1, Warning = 2, Error = 3, Question = 99 };

  /// A return code as a message, and how that is shown.
  struct Message {
    std::string text;
    unsigned long kind;
  };
  static Message messageOf(long code);

  /// Shows the message of a return code, or writes it to the output window. Always 1.
  static long InternalTextOutProc(long code, int toOutputWindow);
  /// Shows a text; a kind that is none of the above shows nothing. Always 0: the answer to a
  /// question changes nothing.
  static long InternalTextOutProc(const std::string& text, unsigned long kind);

  /// The callback for the provider's texts: each becomes a line of the CM output stream. Always 0,
  /// so that the provider is never asked to cancel.
  static scc::LONG SCC_CALL IDETextOutProc(scc::LPSTR text, scc::LONG kind);
};

}  // namespace veldra
