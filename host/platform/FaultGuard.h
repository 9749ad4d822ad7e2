#pragma once

#include <functional>

#include "cm/host/CSignal2Exception.h"

namespace veldra::host {

/// Turns bad memory accesses, misaligned ones, divisions by zero, illegal instructions and the
/// exhaustion of the stack into `ProcessorFault`.
///
/// Guards nest, and each thread has its own. A fault in a thread without a guard, and such a signal
/// that somebody sent on purpose, goes to whoever handled it before: by default the process dies.
/// Where faults are signals, their handlers are set by the first guard and stay; handlers that
/// others set later are put in force again for what happens outside of guards, and replaced by the
/// next one.
class FaultGuard : public CSignal2Exception {
 public:
  /// May also throw whatever the body throws.
  void guard(const std::function<void()>& body) override;
};

}  // namespace veldra::host
