#include "host/platform/FaultGuard.h"

#include <setjmp.h>
#include <signal.h>

#include <array>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>

#include "host/platform/NumberedText.h"

namespace veldra::host {

namespace {

constexpr std::array<NumberedText<int>, 4> Faults = {{
    {SIGSEGV, "Invalid memory access, or no stack left"},
    {SIGBUS, "Memory access beyond a mapped file, or misaligned"},
    {SIGFPE, "Arithmetic fault, such as a division by zero"},
    {SIGILL, "Illegal instruction"},
}};

/// One active guard of a thread. Written by the handler, read after the jump.
struct Frame {
  sigjmp_buf jump;
  Frame* outer;
  volatile sig_atomic_t signal = 0;
  void* volatile address = nullptr;
};

thread_local Frame* t_innermost = nullptr;

std::mutex s_mutex;
std::array<struct sigaction, Faults.size()> s_former;

void handToFormer(int signal, const siginfo_t& info) {
  for (std::size_t i = 0; i < Faults.size(); ++i) {
    if (Faults[i].number == signal) sigaction(signal, &s_former[i], nullptr);
  }
  // A fault happens again as soon as this returns; a signal that somebody sent has to be repeated.
  if (info.si_code <= 0) raise(signal);
}

void onFault(int signal, siginfo_t* info, void*) {
  Frame* const frame = t_innermost;
  if (frame == nullptr || info->si_code <= 0) {
    handToFormer(signal, *info);
    return;
  }
  frame->signal = signal;
  frame->address = info->si_addr;
  siglongjmp(frame->jump, 1);
}

bool isInForce(int signal) {
  struct sigaction present {};
  sigaction(signal, nullptr, &present);
  return (present.sa_flags & SA_SIGINFO) != 0 && present.sa_sigaction == onFault;
}

/// Our handlers stay when a guard ends, because putting the former ones back costs more than most
/// guarded calls; a fault outside of every guard is handed to them. Whoever sets handlers of its
/// own sets them for all faults, so that one tells of the others.
void putHandlersInForce() {
  const std::lock_guard lock(s_mutex);
  if (isInForce(Faults.front().number)) return;
  struct sigaction action {};
  action.sa_sigaction = onFault;
  // The handler leaves by a jump; as it blocks no signal, the jump has no mask to restore.
  action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
  sigemptyset(&action.sa_mask);
  for (std::size_t i = 0; i < Faults.size(); ++i) {
    if (!isInForce(Faults[i].number)) sigaction(Faults[i].number, &action, &s_former[i]);
  }
}

/// A stack for the handler, because the thread's own may be the very thing that is used up. Where
/// the thread has one already, that one serves.
class HandlerStack {
 public:
  HandlerStack() {
    sigaltstack(nullptr, &m_former);
    if ((m_former.ss_flags & SS_DISABLE) == 0) return;
    m_memory = std::make_unique_for_overwrite<char[]>(Size);
    stack_t mine{};
    mine.ss_sp = m_memory.get();
    mine.ss_size = Size;
    sigaltstack(&mine, nullptr);
  }
  ~HandlerStack() {
    if (m_memory) sigaltstack(&m_former, nullptr);
  }
  HandlerStack(const HandlerStack&) = delete;
  HandlerStack& operator=(const HandlerStack&) = delete;

 private:
  static constexpr std::size_t Size = std::size_t{64} * 1024;

  stack_t m_former{};
  std::unique_ptr<char[]> m_memory;
};

std::string describe(int signal, const void* address) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "%s (signal %d, address %p).", textOf(Faults, signal),
                signal, address);
  return text.data();
}

/// Makes the frame the thread's innermost one, unless the body is left by a jump.
class Entered {
 public:
  explicit Entered(Frame& frame) { t_innermost = &frame; }
  ~Entered() { t_innermost = t_innermost->outer; }
  Entered(const Entered&) = delete;
  Entered& operator=(const Entered&) = delete;
};

}  // namespace

void FaultGuard::guard(const std::function<void()>& body) {
  const HandlerStack stack;
  putHandlersInForce();
  Frame frame;
  frame.outer = t_innermost;
  if (sigsetjmp(frame.jump, 0) == 0) {
    const Entered entered(frame);
    body();
    return;
  }
  // The jump has skipped the end of `entered`.
  t_innermost = frame.outer;
  throw ProcessorFault(describe(frame.signal, frame.address));
}

}  // namespace veldra::host
