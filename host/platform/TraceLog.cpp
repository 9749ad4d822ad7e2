#include "host/platform/TraceLog.h"

#include "host/platform/Clock.h"
#include "host/platform/Secrets.h"

namespace veldra::host {

namespace {

std::string_view baseName(std::string_view path) {
  const auto separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

void appendEscaped(std::string& line, std::string_view text) {
  for (const char c : text) {
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else {
      line += c;
    }
  }
}

}  // namespace

TraceLog::TraceLog(const std::string& path, Observer observer) : m_observer(std::move(observer)) {
  if (path.empty()) return;
  m_file.open(path, std::ios::app | std::ios::binary);
  if (!m_file.is_open()) m_error = "The trace log '" + path + "' cannot be written.";
}

void TraceLog::write(Log, std::string_view text, const char* file, int line) {
  try {
    const std::lock_guard lock(m_mutex);
    if (!isOn()) return;
    const std::tm now = localTimeNow();
    std::string entry = dateText(now) + ' ' + timeText(now) + ' ';
    entry.append(baseName(file == nullptr ? "" : file));
    entry += ':' + std::to_string(line) + ' ';
    appendEscaped(entry, withoutSecrets(text));
    if (m_observer) m_observer(entry);
    if (!m_file.is_open()) return;
    m_file << entry << '\n' << std::flush;
    // A full disk may have room again for the next line.
    m_file.clear();
  } catch (...) {
    // A trace that cannot be written must not disturb what is traced.
    m_file.clear();
  }
}

}  // namespace veldra::host
