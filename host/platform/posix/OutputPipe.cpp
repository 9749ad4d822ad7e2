#include "host/platform/posix/OutputPipe.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

namespace veldra::host {

namespace {

// A child that prints much waits less often for a larger pipe; for others it is not worth a call.
constexpr std::size_t FirstPipe = std::size_t{64} * 1024;
constexpr std::size_t LargePipe = std::size_t{1024} * 1024;

constexpr std::size_t SmallPiece = 4096;
constexpr int ManySmallPieces = 64;

}  // namespace

int OutputPipe::open() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return -1;
  m_reader.reset(ends[0]);
  // Only our end: most tools cannot write to a pipe that does not block.
  ::fcntl(m_reader.get(), F_SETFL, O_NONBLOCK);
  m_childEnd = aboveStandard(FileDescriptor(ends[1]));
  return m_childEnd.get();
}

/// A flood would otherwise fault its memory in by the hundred thousand small pages.
void OutputPipe::preferLargePages() {
  if (!isFlood()) return;
  const std::span<char> memory = m_lines.untouched();
  const char* const end = memory.data() + memory.size();
  if (end == m_advisedEnd) return;
  m_advisedEnd = end;
  const auto pageSize = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  const auto start = reinterpret_cast<std::uintptr_t>(memory.data());
  const std::uintptr_t offset = (pageSize - start % pageSize) % pageSize;
  if (offset >= memory.size()) return;
  // Advice only: a system that does not take it is merely slower.
  ::madvise(memory.data() + offset, memory.size() - offset, MADV_HUGEPAGE);
}

bool OutputPipe::isFlood() const {
  return m_lines.size() > LargePipe;
}

/// Who writes line by line has its reader started for each of them, which takes longer than the
/// writing; who writes more than this much at once would soon have to wait.
void OutputPipe::noteSize(std::size_t count) {
  if (count < SmallPiece && m_smallPieces < ManySmallPieces) ++m_smallPieces;
  m_mayGather = m_smallPieces == ManySmallPieces && count < FirstPipe / 2;
}

void OutputPipe::keep(std::string_view bytes) {
  m_insideLine = bytes.back() != '\n';
  if (m_watch) m_watch->printed(bytes);
  if (m_forgets) return;
  m_lines.append(bytes);
  preferLargePages();
}

std::size_t OutputPipe::take(short events) {
  // Nothing is left to read, and a list that stays empty needs no memory.
  if ((events & POLLIN) == 0) m_reader.reset();
  static thread_local std::array<char, FirstPipe> buffer;
  std::size_t taken = 0;
  while (m_reader && taken < LargePipe) {
    const ssize_t result = ::read(m_reader.get(), buffer.data(), buffer.size());
    if (result < 0 && errno == EINTR) continue;
    if (result < 0 && errno == EAGAIN) break;
    if (result <= 0) {
      m_reader.reset();
      break;
    }
    const auto count = static_cast<std::size_t>(result);
    keep({buffer.data(), count});
    taken += count;
    noteSize(count);
    if (count == FirstPipe && !std::exchange(m_enlarged, true)) {
      ::fcntl(m_reader.get(), F_SETPIPE_SZ, static_cast<int>(LargePipe));
    }
    if (count < buffer.size()) break;
  }
  if (m_follower && taken != 0 && !m_forgets) (*m_follower)(m_lines.text());
  return taken;
}

}  // namespace veldra::host
