#pragma once

#include <cstdint>
#include <string_view>

#include "cm/host/RunThread.h"

namespace veldra::host {

/// The run of a command that is not run: it has ended before it began.
class EndedRun : public RunThread {
 public:
  /// A command that counts as done well, without a word.
  EndedRun() : EndedRun(ProcessEnd::Exited, {}) {}
  /// `errorLine` is what the user gets to read; empty for nothing.
  EndedRun(ProcessEnd end, std::string_view errorLine) : m_end(end) {
    if (!errorLine.empty()) m_errors.append(errorLine);
  }

  std::uint32_t getStatus(std::uint32_t /*timeout*/) override { return 0; }
  LineList& errorLines() override { return m_errors; }
  LineList& outputLines() override { return m_output; }
  ProcessEnd end() const override { return m_end; }
  int endCode() const override { return 0; }

 private:
  ProcessEnd m_end;
  LineList m_errors;
  LineList m_output;
};

}  // namespace veldra::host
