#include "host/platform/win32/GuardedCall.h"

#include <windows.h>

#if defined(_MSC_VER)

namespace veldra::host {

GuardedEnd callGuarded(void (*body)(void* argument), void* argument,
                       bool (*isWanted)(unsigned long code) noexcept) {
  GuardedEnd end;
  __try {
    body(argument);
  } __except (
      end = {GetExceptionCode(), (GetExceptionInformation())->ExceptionRecord->ExceptionAddress},
      isWanted(end.code) ? EXCEPTION_EXECUTE_HANDLER : EXCEPTION_CONTINUE_SEARCH) {
    return end;
  }
  return {};
}

}  // namespace veldra::host

#elif defined(__x86_64__)

namespace veldra::host {

namespace {

struct Call {
  GuardedEnd end;
  bool (*isWanted)(unsigned long code) noexcept;
  void* frame = nullptr;  ///< Of the function that calls the body.
  Call* outer = nullptr;
};

/// The innermost call of this thread.
thread_local Call* t_call = nullptr;

/// True for an exception that is to end the innermost call; notes it there.
bool takesException(const EXCEPTION_RECORD& record) {
  if (t_call == nullptr || !t_call->isWanted(record.ExceptionCode)) return false;
  t_call->end = {record.ExceptionCode, record.ExceptionAddress};
  return true;
}

}  // namespace

// GCC has no keyword for the system's exception handlers, its assembler has. The function that
// follows keeps all registers that a caller may rely on in its frame, notes the frame, and calls
// `body`. Who goes on at the second label, with the frame as the stack, makes it return 1, not 0.
// Its frame begins with the 32 bytes that belong to whom it calls.
extern "C" int veldraCallWithHandler(void (*body)(void*), void* argument, void** frame);
extern "C" void veldraAfterFault();

extern "C" __attribute__((used)) EXCEPTION_DISPOSITION veldraOnException(
    EXCEPTION_RECORD* record, void* frame, CONTEXT*, DISPATCHER_CONTEXT* dispatcher) {
  constexpr DWORD Unwinding = EXCEPTION_UNWINDING | EXCEPTION_EXIT_UNWIND;
  if ((record->ExceptionFlags & Unwinding) == 0 && takesException(*record)) {
    RtlUnwindEx(frame, reinterpret_cast<void*>(veldraAfterFault), record, nullptr,
                dispatcher->ContextRecord, dispatcher->HistoryTable);
  }
  return ExceptionContinueSearch;
}

asm(R"(
  .text
  .globl veldraCallWithHandler
  .globl veldraAfterFault
  .def veldraCallWithHandler; .scl 2; .type 32; .endef
  .seh_proc veldraCallWithHandler
veldraCallWithHandler:
  .irp register, rbp, rbx, rdi, rsi, r12, r13, r14, r15
  pushq %\register
  .seh_pushreg %\register
  .endr
  subq $200, %rsp
  .seh_stackalloc 200
  .irp number, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
  movaps %xmm\number, 16 * \number - 64(%rsp)
  .seh_savexmm %xmm\number, 16 * \number - 64
  .endr
  .seh_endprologue
  movq %rsp, (%r8)
  movq %rcx, %rax
  movq %rdx, %rcx
  call *%rax
  xorl %eax, %eax
  jmp veldraRestore
veldraAfterFault:
  movl $1, %eax
veldraRestore:
  .irp number, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
  movaps 16 * \number - 64(%rsp), %xmm\number
  .endr
  addq $200, %rsp
  .irp register, r15, r14, r13, r12, rsi, rdi, rbx, rbp
  popq %\register
  .endr
  ret
  .seh_handler veldraOnException, @except, @unwind
  .seh_endproc
)");

namespace {

/// True when there is no memory at the address, as after a library has been unloaded.
bool isNowhere(const void* code) {
  MEMORY_BASIC_INFORMATION place{};
  return VirtualQuery(code, &place, sizeof place) == 0 || place.State != MEM_COMMIT;
}

/// What is left of a stack that is used up may not suffice for the search for handlers and the way
/// back through the frames, and code that is gone has taken along how its frames are left. Such
/// exceptions are taken before the search begins.
LONG CALLBACK onHopelessFault(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  const bool isHopeless =
      record.ExceptionCode == EXCEPTION_STACK_OVERFLOW || isNowhere(record.ExceptionAddress);
  if (!isHopeless || !takesException(record)) return EXCEPTION_CONTINUE_SEARCH;
  exception->ContextRecord->Rip = reinterpret_cast<DWORD64>(veldraAfterFault);
  exception->ContextRecord->Rsp = reinterpret_cast<DWORD64>(t_call->frame);
  return EXCEPTION_CONTINUE_EXECUTION;
}

/// Makes a call the thread's innermost one until it comes back or throws.
class Innermost {
 public:
  explicit Innermost(Call& call) : m_handler(AddVectoredExceptionHandler(1, onHopelessFault)) {
    call.outer = t_call;
    t_call = &call;
  }
  ~Innermost() {
    t_call = t_call->outer;
    RemoveVectoredExceptionHandler(m_handler);
  }
  Innermost(const Innermost&) = delete;
  Innermost& operator=(const Innermost&) = delete;

 private:
  void* m_handler;
};

}  // namespace

GuardedEnd callGuarded(void (*body)(void* argument), void* argument,
                       bool (*isWanted)(unsigned long code) noexcept) {
  Call call{{}, isWanted};
  const Innermost innermost(call);
  return veldraCallWithHandler(body, argument, &call.frame) != 0 ? call.end : GuardedEnd();
}

}  // namespace veldra::host

#else
#error "The fault guard knows only MSVC, and GCC or Clang for 64-bit x86."
#endif
