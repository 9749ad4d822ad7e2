#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "cm/host/RunThread.h"
#include "host/platform/Processes.h"
#include "host/platform/win32/SystemHandle.h"

namespace veldra::host {

/// The reading end of a pipe and the list that takes what comes out of it. A read is always under
/// way while the pipe is open, and sets an event when it has something.
class OutputPipe {
 public:
  /// `watch` sees what comes out; null for nobody.
  OutputPipe(LineList& lines, ChildWatch* watch) : m_lines(lines), m_watch(watch) {}
  ~OutputPipe() { close(); }
  OutputPipe(const OutputPipe&) = delete;
  OutputPipe& operator=(const OutputPipe&) = delete;

  /// Makes the pipe and returns the child's end of it, which children may inherit; null when the
  /// system refuses.
  HANDLE open();
  /// To be called when the child has been started: only then can the pipe come to its end.
  void releaseChildEnd() { m_childEnd.reset(); }
  /// Begins to read.
  void start();
  /// Takes all that is there, and closes the pipe at its end. The bytes taken.
  std::size_t take();

  /// Who is told what has come, each time that there is more. Not owned.
  void setFollower(const OutputFollower* follower) { m_follower = follower; }
  /// What comes from now on is read and forgotten.
  void forgetFurther() { m_forgets = true; }

  void close();
  bool hasLines() const { return !m_lines.empty(); }
  /// True when there is so much that keeping it costs.
  bool isFlood() const;
  /// True when the last byte taken was no line end.
  bool endsInsideLine() const { return m_insideLine; }

  bool isOpen() const { return static_cast<bool>(m_reader); }
  /// Set when `take` has something to do.
  HANDLE event() const { return m_event.get(); }

 private:
  void read();
  void keep(std::size_t count);

  LineList& m_lines;
  ChildWatch* m_watch;
  const OutputFollower* m_follower = nullptr;
  SystemHandle m_reader;
  SystemHandle m_childEnd;
  SystemHandle m_event;
  OVERLAPPED m_pending{};
  std::array<char, std::size_t{64} * 1024> m_buffer;
  bool m_forgets = false;
  bool m_insideLine = false;
};

}  // namespace veldra::host
