#include <gtest/gtest.h>
#include <signal.h>

#include <array>
#include <thread>

#include "tests/host/platform/Faults.h"

namespace veldra::host {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool SanitizerReportsFaults = true;
#else
constexpr bool SanitizerReportsFaults = false;
#endif

volatile sig_atomic_t seen = 0;

void countIt(int) {
  seen = seen + 1;
}

TEST(FaultGuardSignals, outsideOfGuardsGoToWhoeverHandledThemLast) {
  if (SanitizerReportsFaults) GTEST_SKIP() << "the address sanitizer lets nobody handle them";
  EXPECT_NE(faultOf(writeToNull), "no fault");
  std::array<struct sigaction, 2> former{};
  struct sigaction counting {};
  counting.sa_handler = countIt;
  // One handler that a library sets while it is called, and one that a program sets by itself.
  EXPECT_EQ(faultOf([&] { sigaction(SIGSEGV, &counting, &former[0]); }), "no fault");
  sigaction(SIGFPE, &counting, &former[1]);
  seen = 0;
  raise(SIGSEGV);
  EXPECT_EQ(seen, 1);
  // Guards work as before, and so do those handlers after it.
  EXPECT_NE(faultOf(writeToNull), "no fault");
  EXPECT_NE(faultOf(divideByZero), "no fault");
  EXPECT_EQ(seen, 1);
  raise(SIGSEGV);
  raise(SIGFPE);
  EXPECT_EQ(seen, 3);
  sigaction(SIGSEGV, &former[0], nullptr);
  sigaction(SIGFPE, &former[1], nullptr);
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
