#include "cm/scc/CallbackThread.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <thread>

namespace veldra::test {
namespace {

TEST(CallbackThreadTest, AStepWaitsForItsThreadAndIsDroppedWithItsPlace) {
  const std::thread::id own = std::this_thread::get_id();
  std::string events;
  const auto step = [&](const char* event) {
    return [&events, own, event] {
      EXPECT_EQ(std::this_thread::get_id(), own);
      events += event;
    };
  };
  int data = 0;
  std::optional<CallbackThread::Place> place(&data);
  const auto fromElsewhere = [&](const char* event) {
    std::thread([&] { CallbackThread::run(step(event), &data); }).join();
  };
  {
    const CallbackThread::Scope call;
    fromElsewhere("kept ");
    CallbackThread::run(step("at once "), &data);
    EXPECT_EQ(events, "at once ");
  }
  EXPECT_EQ(events, "at once kept ");
  fromElsewhere("too late ");
  place.reset();
  const CallbackThread::Scope call;
  CallbackThread::run(step("later still "), &data);
  CallbackThread::run(step("without a place"));
  EXPECT_EQ(events, "at once kept without a place");
}

}  // namespace
}  // namespace veldra::test
