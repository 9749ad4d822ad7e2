#include "host/platform/FaultGuard.h"

#include <malloc.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <string>

#include "host/platform/NumberedText.h"
#include "host/platform/win32/GuardedCall.h"

namespace veldra::host {

namespace {

constexpr std::array<NumberedText<DWORD>, 10> Faults = {{
    {EXCEPTION_ACCESS_VIOLATION, "Invalid memory access"},
    {EXCEPTION_IN_PAGE_ERROR, "Memory access beyond a mapped file"},
    {EXCEPTION_DATATYPE_MISALIGNMENT, "Misaligned memory access"},
    {EXCEPTION_STACK_OVERFLOW, "Stack overflow, no stack left"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, "Arithmetic fault, a division by zero"},
    {EXCEPTION_INT_OVERFLOW, "Arithmetic fault, an overflow"},
    {EXCEPTION_FLT_DIVIDE_BY_ZERO, "Arithmetic fault, a division by zero"},
    {EXCEPTION_FLT_INVALID_OPERATION, "Arithmetic fault, an invalid operation"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, "Illegal instruction"},
    {EXCEPTION_PRIV_INSTRUCTION, "Illegal instruction, only for the system"},
}};

/// What the handler may still use of a stack that is used up.
constexpr ULONG HandlerStack = ULONG{64} * 1024;

bool isFault(unsigned long code) noexcept {
  return textOf(Faults, code) != nullptr;
}

std::string describe(const GuardedEnd& end) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "%s (exception 0x%08lX, address %p).",
                textOf(Faults, end.code), end.code, end.address);
  return text.data();
}

void callBody(void* body) {
  (*static_cast<const std::function<void()>*>(body))();
}

}  // namespace

void FaultGuard::guard(const std::function<void()>& body) {
  ULONG reserved = HandlerStack;
  SetThreadStackGuarantee(&reserved);
  const GuardedEnd end =
      callGuarded(callBody, const_cast<void*>(static_cast<const void*>(&body)), isFault);
  if (end.code == 0) return;
  // Without it the next overflow of this thread would end the process.
  if (end.code == EXCEPTION_STACK_OVERFLOW) _resetstkoflw();
  throw ProcessorFault(describe(end));
}

}  // namespace veldra::host
