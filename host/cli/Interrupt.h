#pragma once

#include "host/platform/Processes.h"

namespace veldra::host::cli {

/// From now on the interrupt and the terminate signal end the running child and let the batch stop
/// before its next unit. The second one ends the program at once.
void catchInterrupts();

/// Whether one of the two signals has come.
bool wasInterrupted();

/// Names the processes whose running child an interrupt ends, for as long as this lives.
class InterruptTarget {
 public:
  explicit InterruptTarget(Processes& processes);
  InterruptTarget(const InterruptTarget&) = delete;
  InterruptTarget& operator=(const InterruptTarget&) = delete;
  ~InterruptTarget();
};

}  // namespace veldra::host::cli
