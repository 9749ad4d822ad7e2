#include "host/platform/FaultGuard.h"

#include <gmock/gmock.h>
#include <signal.h>

#include <array>
#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

namespace veldra::host {
namespace {

using testing::HasSubstr;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool SanitizerReportsFaults = true;
#else
constexpr bool SanitizerReportsFaults = false;
#endif

#define UNCHECKED __attribute__((noinline, no_sanitize("address", "undefined")))

UNCHECKED void writeToNull() {
  volatile int* volatile nowhere = nullptr;
  *nowhere = 1;
}

UNCHECKED void divideByZero() {
  volatile int zero = 0;
  volatile int result = 1;
  result = result / zero;
}

UNCHECKED void executeNonsense() {
  __builtin_trap();
}

// Takes a kilobyte per call, and more calls than any stack has kilobytes.
UNCHECKED int useUpTheStack(int depth) {
  volatile char used[1024] = {};
  used[0] = static_cast<char>(depth);
  if (depth == 0) return used[0];
  return useUpTheStack(depth - 1) + used[0];
}

void overflow() {
  volatile int ignored = useUpTheStack(1 << 30);
  (void)ignored;
}

std::string faultOf(const std::function<void()>& body) {
  FaultGuard guard;
  try {
    guard.guard(body);
    return "no fault";
  } catch (const ProcessorFault& fault) {
    return fault.what();
  }
}

bool handlersAreFormer() {
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    if (!SanitizerReportsFaults && now.sa_handler != SIG_DFL) return false;
  }
  return true;
}

TEST(FaultGuard, turnsEachFaultIntoAnExceptionAgainAndAgain) {
  for (int round = 0; round < 3; ++round) {
    EXPECT_THAT(faultOf(writeToNull), HasSubstr("memory access"));
    EXPECT_THAT(faultOf(divideByZero), HasSubstr("division by zero"));
    EXPECT_THAT(faultOf(executeNonsense), HasSubstr("Illegal instruction"));
    EXPECT_EQ(faultOf([] {}), "no fault");
  }
  EXPECT_TRUE(handlersAreFormer());
}

TEST(FaultGuard, survivesTheEndOfTheStackOnEveryThread) {
  EXPECT_THAT(faultOf(overflow), HasSubstr("no stack left"));
  EXPECT_THAT(faultOf(overflow), HasSubstr("no stack left"));
  std::thread([] { EXPECT_THAT(faultOf(overflow), HasSubstr("no stack left")); }).join();
}

TEST(FaultGuard, guardsNest) {
  bool wentOn = false;
  EXPECT_THAT(faultOf([&] {
                EXPECT_THAT(faultOf(writeToNull), HasSubstr("memory access"));
                wentOn = true;
                divideByZero();
              }),
              HasSubstr("division by zero"));
  EXPECT_TRUE(wentOn);
  EXPECT_TRUE(handlersAreFormer());
}

TEST(FaultGuard, otherExceptionsPass) {
  EXPECT_THROW(FaultGuard().guard([] { throw std::out_of_range("x"); }), std::out_of_range);
  EXPECT_THAT(faultOf(writeToNull), HasSubstr("memory access"));
  EXPECT_TRUE(handlersAreFormer());
}

TEST(FaultGuard, eachThreadHasItsOwn) {
  std::atomic<int> faults = 0;
  std::array<std::thread, 8> threads;
  for (std::thread& thread : threads) {
    thread = std::thread([&faults] {
      for (int i = 0; i < 200; ++i) faults += faultOf(divideByZero) != "no fault" ? 1 : 0;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(faults, 1600);
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
