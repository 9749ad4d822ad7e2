#pragma once

#include <functional>
#include <stdexcept>

namespace veldra {

/// A processor fault (bad address, division by zero, ...) inside a guarded scope.
class ProcessorFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Turns processor faults into exceptions. Outside it a fault ends the process as usual.
class CSignal2Exception {
 public:
  virtual ~CSignal2Exception() = default;
  /// Runs `body`. A fault in it leaves the body at once and is thrown as `ProcessorFault`;
  /// destructors of objects made inside the body between the fault and the guard may not run.
  virtual void guard(const std::function<void()>& body) = 0;
};

/// Runs `body` under the host's guard, or plainly when the host has none.
void guardFaults(const std::function<void()>& body);

}  // namespace veldra
