#include <gmock/gmock.h>

#include <array>
#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/host/platform/Faults.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

TEST(FaultGuard, turnsEachFaultIntoAnExceptionAgainAndAgain) {
  for (int round = 0; round < 3; ++round) {
    EXPECT_THAT(faultOf(writeToNull), HasSubstr("memory access"));
    EXPECT_THAT(faultOf(divideByZero), HasSubstr("division by zero"));
    EXPECT_THAT(faultOf(executeNonsense), HasSubstr("Illegal instruction"));
    EXPECT_EQ(faultOf([] {}), "no fault");
  }
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
}

TEST(FaultGuard, otherExceptionsPass) {
  EXPECT_THROW(FaultGuard().guard([] { throw std::out_of_range("x"); }), std::out_of_range);
  EXPECT_THAT(faultOf(writeToNull), HasSubstr("memory access"));
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
}

}  // namespace
}  // namespace veldra::host
