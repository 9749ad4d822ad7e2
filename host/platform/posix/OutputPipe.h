#pragma once

#include <cstddef>
#include <string_view>

#include "cm/host/RunThread.h"
#include "host/platform/Processes.h"
#include "host/platform/posix/FileDescriptor.h"

namespace veldra::host {

/// The reading end of a pipe and the list that takes what comes out of it.
class OutputPipe {
 public:
  /// `watch` sees what comes out; null for nobody.
  OutputPipe(LineList& lines, ChildWatch* watch) : m_lines(lines), m_watch(watch) {}

  /// Makes the pipe and returns the child's end of it; -1 when the system has no descriptor left.
  /// That end stays open here too until `releaseChildEnd`: the end of a child that says nothing
  /// then wakes its reader once, not once per pipe and once more for the child.
  int open();
  /// To be called when the child has ended. Only then can the pipe come to its end.
  void releaseChildEnd() { m_childEnd.reset(); }
  /// Takes all that was there when it was called, and closes the pipe at its end. The bytes taken.
  /// `events` is what `poll` has said of the descriptor, and not 0.
  std::size_t take(short events);

  /// Who is told what has come, each time that there is more. Not owned.
  void setFollower(const OutputFollower* follower) { m_follower = follower; }
  /// What comes from now on is read and forgotten.
  void forgetFurther() { m_forgets = true; }

  void close() { m_reader.reset(); }
  bool hasLines() const { return !m_lines.empty(); }
  /// True when there is so much that keeping it costs.
  bool isFlood() const;
  /// True when the last byte taken was no line end.
  bool endsInsideLine() const { return m_insideLine; }

  bool isOpen() const { return static_cast<bool>(m_reader); }
  int descriptor() const { return m_reader.get(); }
  /// True for a child that has printed many small pieces, when more of them had better come
  /// together before they are taken.
  bool mayGather() const { return isOpen() && m_mayGather; }

 private:
  void noteSize(std::size_t count);
  void keep(std::string_view bytes);
  void preferLargePages();

  LineList& m_lines;
  ChildWatch* m_watch;
  const OutputFollower* m_follower = nullptr;
  FileDescriptor m_reader;
  FileDescriptor m_childEnd;
  int m_smallPieces = 0;
  bool m_mayGather = false;
  bool m_enlarged = false;
  bool m_forgets = false;
  bool m_insideLine = false;
  const char* m_advisedEnd = nullptr;
};

}  // namespace veldra::host
