#pragma once

#include <string_view>

namespace veldra {

/// The host's trace log. A host without one gets no lines.
class LogTrace {
 public:
  enum class Log : int { Min = 4 };  ///< Log number of the module's steps.

  virtual ~LogTrace() = default;
  /// False when nobody would see a line; then none need be made.
  virtual bool isOn() const { return true; }
  /// One line, with the source file and line that wrote it.
  virtual void write(Log log, std::string_view text, const char* file, int line) = 0;
};

/// Writes `text` followed by `value` as one line to the trace log, if there is one.
void traceLine(const char* file, int line, std::string_view text, std::string_view value = {});

}  // namespace veldra

/// A trace line that carries the place it is written from.
#define VELDRA_TRACE(...) ::veldra::traceLine(__FILE__, __LINE__, __VA_ARGS__)
