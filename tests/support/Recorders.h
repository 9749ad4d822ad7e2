#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "cm/host/CSignal2Exception.h"
#include "cm/host/IAbstractCMManager.h"
#include "cm/host/IKeptCopies.h"
#include "cm/host/IProgress.h"
#include "cm/host/LogTrace.h"
#include "cm/host/Undoer.h"
#include "tests/support/Journal.h"
#include "tests/support/MemoryFiles.h"

namespace veldra::test {

/// An output window that keeps its text.
class MemoryCMManager : public IAbstractCMManager {
 public:
  explicit MemoryCMManager(Journal& journal) : m_journal(journal) {}
  std::ostream* getOutputStream() override { return hasStream ? &window : nullptr; }
  void clearOutputWindow() override {
    m_journal.add("window-cleared");
    window.str("");
  }
  void setCMOperationRunning(int running) override {
    m_journal.add("operation-running " + std::to_string(running));
  }
  void setCMOutputFollows(int follows) override {
    m_journal.add("output-follows " + std::to_string(follows));
  }

  std::ostringstream window;
  bool hasStream = true;

 private:
  Journal& m_journal;
};

class MemoryUndoer : public Undoer {
 public:
  explicit MemoryUndoer(Journal& journal) : m_journal(journal) {}
  void startTransaction(const IViewParameters*, int undoFlag) override {
    m_journal.add("undo-begin " + std::to_string(undoFlag));
    ++open;
  }
  void endTransaction() override {
    m_journal.add("undo-end");
    --open;
  }
  void startDoNothingTransaction() override { m_journal.add("no-undo-begin"); }
  void endDoNothingTransaction() override { m_journal.add("no-undo-end"); }
  int open = 0;

 private:
  Journal& m_journal;
};

class MemoryTrace : public LogTrace {
 public:
  struct Line {
    std::string text;
    std::string file;
    int line = 0;
  };
  void write(Log, std::string_view text, const char* file, int line) override {
    lines.push_back({std::string(text), MemoryFiles::nameOf(file), line});
    if (onLine) onLine(lines.back().text);
  }
  std::vector<std::string> texts() const {
    std::vector<std::string> all;
    for (const Line& line : lines) all.push_back(line.text);
    return all;
  }
  std::vector<Line> lines;
  std::function<void(const std::string&)> onLine;
};

/// Runs the body as it is. Real hosts catch the processor's signals here; in tests the body throws
/// `ProcessorFault` itself.
class MemoryFaultGuard : public CSignal2Exception {
 public:
  void guard(const std::function<void()>& body) override {
    ++entered;
    body();
  }
  int entered = 0;
};

class MemoryProgress : public IProgress {
 public:
  struct End {
    std::string unit;
    UnitEnd end;
    std::string words;
  };
  void unitStarted(const ProgressStep& step) override { started.push_back(step); }
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) override {
    ended.push_back({step.unit, end, words});
  }
  void providerCallStarted(const char* entryPoint) override {
    ++openProviderCalls;
    if (onProviderCall) onProviderCall(entryPoint);
  }
  void providerCallEnded() override { --openProviderCalls; }
  bool isCancelled() override { return ended.size() >= cancelAfter; }

  int openProviderCalls = 0;
  std::function<void(const char*)> onProviderCall;

  std::vector<ProgressStep> started;
  std::vector<End> ended;
  std::size_t cancelAfter = static_cast<std::size_t>(-1);
};

/// Remembers what was kept; refuses every file while `refusal` is set.
class MemoryKeptCopies : public IKeptCopies {
 public:
  bool keep(const std::string& file, const std::string& operation, std::string& reason) override {
    reason = refusal;
    if (refusal.empty()) lines.push_back("keep " + file + " before " + operation);
    return refusal.empty();
  }
  void settle(const std::string& file) override { lines.push_back("settle " + file); }

  std::vector<std::string> lines;
  std::string refusal;
};

}  // namespace veldra::test
