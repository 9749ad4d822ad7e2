#include "host/platform/win32/OutputPipe.h"

#include <atomic>
#include <string>

namespace veldra::host {

namespace {

constexpr DWORD PipeSize = DWORD{64} * 1024;
constexpr std::size_t Flood = std::size_t{1024} * 1024;

/// Only pipes with a name can be read without waiting.
std::wstring pipeName() {
  static std::atomic<unsigned> counter{0};
  return L"\\\\.\\pipe\\veldra-cm-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
         std::to_wstring(counter++);
}

}  // namespace

HANDLE OutputPipe::open() {
  const std::wstring name = pipeName();
  m_event.reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  m_reader.reset(CreateNamedPipeW(
      name.c_str(), PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
      PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, 0, PipeSize,
      0, nullptr));
  if (!m_reader) return nullptr;
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  m_childEnd.reset(CreateFileW(name.c_str(), GENERIC_WRITE | FILE_READ_ATTRIBUTES, 0, &inherited,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  return m_childEnd ? m_childEnd.get() : nullptr;
}

void OutputPipe::start() {
  read();
}

/// The event tells of its end, even when it had one at once.
void OutputPipe::read() {
  m_pending = {};
  m_pending.hEvent = m_event.get();
  const bool isUnderWay = ReadFile(m_reader.get(), m_buffer.data(),
                                   static_cast<DWORD>(m_buffer.size()), nullptr, &m_pending) != 0 ||
                          GetLastError() == ERROR_IO_PENDING;
  if (!isUnderWay) m_reader.reset();
}

std::size_t OutputPipe::take() {
  std::size_t taken = 0;
  while (m_reader && taken < Flood) {
    DWORD count = 0;
    if (!GetOverlappedResult(m_reader.get(), &m_pending, &count, FALSE)) {
      if (GetLastError() != ERROR_IO_INCOMPLETE) m_reader.reset();
      break;
    }
    keep(count);
    taken += count;
    read();
  }
  if (m_follower && taken != 0 && !m_forgets) (*m_follower)(m_lines.text());
  return taken;
}

void OutputPipe::keep(std::size_t count) {
  if (count == 0) return;
  const std::string_view bytes(m_buffer.data(), count);
  m_insideLine = bytes.back() != '\n';
  if (m_watch) m_watch->printed(bytes);
  if (!m_forgets) m_lines.append(bytes);
}

void OutputPipe::close() {
  if (!m_reader) return;
  DWORD count = 0;
  CancelIoEx(m_reader.get(), &m_pending);
  GetOverlappedResult(m_reader.get(), &m_pending, &count, TRUE);
  m_reader.reset();
}

bool OutputPipe::isFlood() const {
  return m_lines.size() > Flood;
}

}  // namespace veldra::host
