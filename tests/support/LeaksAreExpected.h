#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace veldra::test {

/// What a fault jumps over is never freed; the leak checker is not to tell of that.
class LeaksAreExpected {
 public:
#if defined(__SANITIZE_ADDRESS__)
  LeaksAreExpected() {
    __lsan_disable();
  }
  ~LeaksAreExpected() {
    __lsan_enable();
  }
#else
  LeaksAreExpected() {}
#endif
  LeaksAreExpected(const LeaksAreExpected&) = delete;
  LeaksAreExpected& operator=(const LeaksAreExpected&) = delete;
};

}  // namespace veldra::test
