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

  /// What the callbacks of one call fill in, known by its address for as long as this lives.
  class Place {
   public:
    explicit Place(const void* data);
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place();
  };

  /// Runs `action` now on the thread of the running call; from any other thread it is kept for the
  /// end of that call, or of the next one. Lets no exception out, because its callers are a
  /// provider's functions.
  ///
  /// With a `place` that is gone the action is dropped: nobody keeps a provider from calling back
  /// after its call.
  static void run(std::function<void()> action, const void* place = nullptr) noexcept;
};

}  // namespace veldra
