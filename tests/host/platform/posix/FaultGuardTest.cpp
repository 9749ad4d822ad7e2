#include <gtest/gtest.h>
#include <signal.h>

#include <thread>

#include "tests/host/platform/Faults.h"

namespace veldra::host {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool SanitizerReportsFaults = true;
#else
constexpr bool SanitizerReportsFaults = false;
#endif

bool handlersAreFormer() {
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    if (!SanitizerReportsFaults && now.sa_handler != SIG_DFL) return false;
  }
  return true;
}

TEST(FaultGuardSignals, areHandledAsBeforeOnceNoGuardIsActive) {
  EXPECT_NE(faultOf(writeToNull), "no fault");
  EXPECT_TRUE(handlersAreFormer());
  EXPECT_NE(faultOf([] {
              faultOf(divideByZero);
              writeToNull();
            }),
            "no fault");
  EXPECT_TRUE(handlersAreFormer());
  EXPECT_THROW(FaultGuard().guard([] { throw 1; }), int);
  EXPECT_TRUE(handlersAreFormer());
}

TEST(FaultGuardDeathTest, outsideAGuardTheProcessDiesAsUsual) {
  if (SanitizerReportsFaults) GTEST_SKIP() << "the address sanitizer reports the fault itself";
  EXPECT_EXIT(writeToNull(), testing::KilledBySignal(SIGSEGV), "");
  EXPECT_EXIT(
      {
        faultOf(writeToNull);
        divideByZero();
      },
      testing::KilledBySignal(SIGFPE), "");
  // A guard of one thread does not cover another.
  EXPECT_EXIT(faultOf([] { std::thread(writeToNull).join(); }), testing::KilledBySignal(SIGSEGV),
              "");
  // Nor does it swallow a signal that somebody sent.
  EXPECT_EXIT(faultOf([] { raise(SIGSEGV); }), testing::KilledBySignal(SIGSEGV), "");
}

}  // namespace
}  // namespace veldra::host
