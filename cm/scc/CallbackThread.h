#pragma once

#include <functional>

namespace veldra {

/// Brings the callbacks of a provider onto the thread that called it. Providers call back from
/// threads of their own, and neither the host nor the module may be used from there.
class CallbackThread {
 public:
  /// One call of the provider. What came from other threads meanwhile is done at its end.
  class Scope {
   public:
    Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope();
  };

  /// Runs `step` now on the thread of the running call; from any other thread it is kept for the
  /// end of that call, or of the next one. Lets no exception out, because its callers are a
  /// provider's functions.
  static void run(std::function<void()> step) noexcept;
};

}  // namespace veldra
