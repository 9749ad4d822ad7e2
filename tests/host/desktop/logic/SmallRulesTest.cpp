// Recent projects.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/desktop/logic/RecentProjects.h"

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

}  // namespace
}  // namespace veldra::host::desktop
