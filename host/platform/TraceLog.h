#pragma once

#include <fstream>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

#include "cm/host/LogTrace.h"

namespace veldra::host {

/// The trace log: one line "date time file:line text" per call, added to a file and flushed.
///
/// Line ends inside the text are written as \n and \r, so that a line stays a line. Of the source
/// file only its name appears, and of a password three asterisks. May be called from any thread.
class TraceLog : public LogTrace {
 public:
  /// Told every line, without its end.
  using Observer = std::function<void(std::string_view line)>;

  /// Without a path and an observer nothing happens. The file is made when it does not exist.
  explicit TraceLog(const std::string& path = {}, Observer observer = {});

  /// Why the file cannot be written, for the user. Empty when it can, or when there is none.
  [[nodiscard]] const std::string& error() const { return m_error; }

  bool isOn() const override { return m_file.is_open() || m_observer; }
  void write(Log log, std::string_view text, const char* file, int line) override;

 private:
  std::mutex m_mutex;
  std::ofstream m_file;
  Observer m_observer;
  std::string m_error;
};

}  // namespace veldra::host
