#pragma once

namespace veldra::host {

/// How a guarded call ended.
struct GuardedEnd {
  unsigned long code = 0;   ///< The system's number of the exception; 0 when the call came back.
  void* address = nullptr;  ///< Where it happened.
};

/// Calls `body` and comes back, too, when one of the system's exceptions that `isWanted` accepts is
/// raised in it and nobody inside has handled it. Everything else passes, C++ exceptions among it.
/// Such a handler comes in its turn, after those that a library has set for itself.
GuardedEnd callGuarded(void (*body)(void* argument), void* argument,
                       bool (*isWanted)(unsigned long code) noexcept);

}  // namespace veldra::host
