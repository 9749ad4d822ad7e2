#include "host/ProviderWatch.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

namespace veldra::host {
namespace {

using namespace std::chrono_literals;

/// Waits for what the watching thread does; false when it never does.
bool comesTrue(const std::function<bool()>& condition) {
  for (int i = 0; i < 1000 && !condition(); ++i) std::this_thread::sleep_for(5ms);
  return condition();
}

struct Heard {
  std::atomic<int> told = 0;
  std::atomic<int> givenUp = 0;
  std::atomic<const char*> name = "";
  std::atomic<bool> isInterrupted = false;

  ProviderWatch::Rules rules(std::chrono::milliseconds untilTold,
                             std::chrono::milliseconds untilGivenUp) {
    return {.untilTold = untilTold,
            .untilGivenUp = untilGivenUp,
            .tell =
                [this](const char* entryPoint) {
                  name = entryPoint;
                  ++told;
                },
            .giveUp = [this](const char*) { ++givenUp; },
            .isInterrupted = [this] { return isInterrupted.load(); }};
  }
};

TEST(ProviderWatchTest, TellsOnceOfACallThatDoesNotComeBack) {
  Heard heard;
  ProviderWatch watch(heard.rules(20ms, 1h));
  watch.started("SccQueryInfo");
  watch.ended();
  watch.started("SccCheckout");
  ASSERT_TRUE(comesTrue([&] { return heard.told > 0; }));
  std::this_thread::sleep_for(100ms);
  EXPECT_EQ(heard.told, 1);
  EXPECT_EQ(std::string(heard.name), "SccCheckout");
  watch.ended();
  watch.started("SccCheckout");
  EXPECT_TRUE(comesTrue([&] { return heard.told == 2; })) << "another call of the same function";
}

TEST(ProviderWatchTest, ManyShortCallsAreNotOneLongOne) {
  Heard heard;
  ProviderWatch watch(heard.rules(500ms, 500ms));
  heard.isInterrupted = true;
  const auto end = std::chrono::steady_clock::now() + 700ms;
  while (std::chrono::steady_clock::now() < end) {
    watch.started("SccQueryInfo");
    std::this_thread::sleep_for(1ms);
    watch.ended();
  }
  EXPECT_EQ(heard.told, 0);
  EXPECT_EQ(heard.givenUp, 0);
}

TEST(ProviderWatchTest, GivesUpACallOnlyAfterAnInterrupt) {
  Heard heard;
  ProviderWatch watch(heard.rules(10ms, 20ms));
  watch.started("SccGet");
  ASSERT_TRUE(comesTrue([&] { return heard.told > 0; }));
  std::this_thread::sleep_for(60ms);
  EXPECT_EQ(heard.givenUp, 0);
  heard.isInterrupted = true;
  EXPECT_TRUE(comesTrue([&] { return heard.givenUp > 0; }));
}

}  // namespace
}  // namespace veldra::host
