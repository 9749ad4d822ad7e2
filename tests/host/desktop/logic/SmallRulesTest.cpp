// Recent projects and the time left.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/desktop/logic/RecentProjects.h"
#include "host/desktop/logic/TimeLeft.h"

namespace veldra::host::desktop {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

TEST(RecentProjectsTest, TheNewestIsFirstAndEachStandsOnce) {
  RecentProjects recent({"/a", "/b", "/a", ""});
  recent.opened("/c");
  recent.opened("/b");
  EXPECT_THAT(recent.all(), ElementsAre("/b", "/c", "/a"));
  for (int i = 0; i < 20; ++i) recent.opened("/many" + std::to_string(i));
  EXPECT_THAT(recent.all(), SizeIs(RecentProjects::Most));
}

TEST(TimeLeftTest, TellsOnlyWhatItCanKnow) {
  using Seconds = TimeLeft::Seconds;
  EXPECT_FALSE(TimeLeft::guess(1, 10, Seconds(5)));
  EXPECT_FALSE(TimeLeft::guess(5, 10, Seconds(0.2)));
  EXPECT_FALSE(TimeLeft::guess(11, 10, Seconds(5)));
  EXPECT_DOUBLE_EQ(TimeLeft::guess(3, 10, Seconds(4))->count(), 16);
}

}  // namespace
}  // namespace veldra::host::desktop
