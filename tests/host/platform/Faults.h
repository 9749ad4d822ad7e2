#pragma once

#include <functional>
#include <string>
#if defined(_MSC_VER)
#include <intrin.h>
#endif

#include "host/platform/FaultGuard.h"

namespace veldra::host {

#if defined(_MSC_VER)
#define UNCHECKED __declspec(noinline)
#else
#define UNCHECKED __attribute__((noinline, no_sanitize("address", "undefined")))
#endif

UNCHECKED inline void writeToNull() {
  volatile int* volatile nowhere = nullptr;
  *nowhere = 1;
}

UNCHECKED inline void divideByZero() {
  volatile int zero = 0;
  volatile int result = 1;
  result = result / zero;
}

UNCHECKED inline void executeNonsense() {
#if defined(_MSC_VER)
  __ud2();
#else
  __builtin_trap();
#endif
}

// Takes a kilobyte per call, and more calls than any stack has kilobytes.
UNCHECKED inline int useUpTheStack(int depth) {
  volatile char used[1024] = {};
  used[0] = static_cast<char>(depth);
  if (depth == 0) return used[0];
  return useUpTheStack(depth - 1) + used[0];
}

inline void overflow() {
  volatile int ignored = useUpTheStack(1 << 30);
  (void)ignored;
}

inline std::string faultOf(const std::function<void()>& body) {
  FaultGuard guard;
  try {
    guard.guard(body);
    return "no fault";
  } catch (const ProcessorFault& fault) {
    return fault.what();
  }
}

}  // namespace veldra::host
