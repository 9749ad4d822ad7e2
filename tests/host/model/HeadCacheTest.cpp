#include "host/model/HeadCache.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

class HeadCacheTest : public testing::Test {
 protected:
  HeadCacheTest() {
    for (std::uint64_t number = 0; number < ManyHeads; ++number) {
      UnitHead head;
      head.isOwn = number % 2 == 0;
      head.header = "// $Id: " + std::to_string(number) + " $\n";
      head.name = "Unit" + std::to_string(number);
      head.unitType = number % 3 == 0 ? "Package" : "";
      head.mentionsControlled = number % 5 == 0;
      head.facts.state = FileFacts::State::Readable;
      head.facts.identity = {7, 1000 - number};
      head.facts.size = number;
      head.facts.changed = 1'000'000 + static_cast<std::int64_t>(number);
      m_heads.push_back(std::move(head));
    }
  }

  std::string file() const { return m_folder.path() + "/caches/heads"; }
  void write() const { HeadCache(file()).update(m_heads); }
  static bool knows(const HeadCache& cache, const FileFacts& facts, bool isOwn) {
    UnitHead head;
    return cache.fill(head, facts, isOwn);
  }
  /// Whether a cache of these bytes is empty.
  bool isEmptyWith(const std::string& bytes) const {
    std::ofstream(file(), std::ios::binary | std::ios::trunc) << bytes;
    return HeadCache(file()).isEmpty();
  }

  TempDirectory m_folder;
  std::vector<UnitHead> m_heads;
};

TEST_F(HeadCacheTest, rememberedHeadsComeBackWhole) {
  write();
  const HeadCache cache(file());
  for (const UnitHead& expected : m_heads) {
    UnitHead head;
    ASSERT_TRUE(cache.fill(head, expected.facts, expected.isOwn)) << expected.name;
    EXPECT_EQ(head.header, expected.header);
    EXPECT_EQ(head.name, expected.name);
    EXPECT_EQ(head.unitType, expected.unitType);
    EXPECT_EQ(head.mentionsControlled, expected.mentionsControlled);
    EXPECT_EQ(head.mode, FileMode::ReadOnly);
  }
}

TEST_F(HeadCacheTest, anythingThatDiffersMakesTheFileUnknown) {
  write();
  const HeadCache cache(file());
  const UnitHead& known = m_heads[10];
  ASSERT_TRUE(knows(cache, known.facts, known.isOwn));
  EXPECT_FALSE(knows(cache, known.facts, !known.isOwn));
  FileFacts other = known.facts;
  ++other.changed;
  EXPECT_FALSE(knows(cache, other, known.isOwn));
  other = known.facts;
  ++other.size;
  EXPECT_FALSE(knows(cache, other, known.isOwn));
  other = known.facts;
  ++other.identity.device;
  EXPECT_FALSE(knows(cache, other, known.isOwn));
}

TEST_F(HeadCacheTest, whatMayChangeAgainUnseenIsNotRemembered) {
  m_heads[3].facts.changed = 0;
  m_heads[4].facts.changed = std::int64_t{1} << 62;
  m_heads[5].problem = Problem{"file", "It is cut off.", ""};
  for (std::size_t more = 0; more < 3; ++more) {
    m_heads.push_back(m_heads[more]);
    m_heads.back().facts.identity.device = 8;
  }
  write();
  const HeadCache cache(file());
  ASSERT_FALSE(cache.isEmpty());
  for (const std::size_t unsafe : {3U, 4U, 5U}) {
    EXPECT_FALSE(knows(cache, m_heads[unsafe].facts, m_heads[unsafe].isOwn)) << unsafe;
  }
}

TEST_F(HeadCacheTest, aDamagedFileCountsAsEmpty) {
  write();
  std::ifstream stream(file(), std::ios::binary);
  const std::string whole{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_FALSE(isEmptyWith(whole));
  EXPECT_TRUE(isEmptyWith(""));
  EXPECT_TRUE(isEmptyWith(whole.substr(0, whole.size() / 2)));
  for (std::size_t at = 0; at < whole.size(); at += whole.size() / 50) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    EXPECT_TRUE(isEmptyWith(damaged)) << "byte " << at;
  }
}

}  // namespace
}  // namespace veldra::host
