#include "host/compare/TextDifference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace veldra::host::compare {
namespace {

std::string randomText(std::mt19937& random, std::size_t lines, std::size_t letters) {
  std::string text;
  for (std::size_t i = 0; i < lines; ++i) {
    text += static_cast<char>('a' + random() % letters);
    text += '\n';
  }
  if (!text.empty() && random() % 3 == 0) text.pop_back();
  return text;
}

/// How many lines two texts have in common at most, the slow and certain way.
std::size_t common(const Lines& a, const Lines& b) {
  std::vector<std::size_t> row(b.size() + 1, 0);
  for (const std::string_view line : a) {
    std::size_t corner = 0;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t above = row[j];
      row[j] = line == b[j - 1] ? corner + 1 : std::max(row[j], row[j - 1]);
      corner = above;
    }
  }
  return row.back();
}

std::size_t changed(const std::vector<Hunk>& hunks) {
  std::size_t lines = 0;
  for (const Hunk& hunk : hunks) lines += hunk.firstCount + hunk.secondCount;
  return lines;
}

TEST(TextDifference, IsTheShortestAndLeadsToEitherText) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    const std::string first = randomText(random, random() % 40, 2 + random() % 6);
    const std::string second = randomText(random, random() % 40, 2 + random() % 6);
    const Lines a = linesOf(first);
    const Lines b = linesOf(second);
    const std::vector<Hunk> hunks = textDifferences(a, b);
    EXPECT_EQ(changed(hunks), a.size() + b.size() - 2 * common(a, b)) << first << "--\n" << second;
    EXPECT_EQ(mergedText(a, b, hunks, {}), first);
    EXPECT_EQ(mergedText(a, b, hunks, std::vector<Side>(hunks.size(), Side::Second)), second);
  }
}

TEST(TextDifference, TextsWithNothingInCommonEndInTime) {
  std::string first;
  std::string second;
  for (int line = 0; line < 30'000; ++line) {
    first += "a" + std::to_string(line) + '\n';
    second += (line % 100 == 0 ? "a" : "b") + std::to_string(line) + '\n';
  }
  const Lines a = linesOf(first);
  const Lines b = linesOf(second);
  const std::vector<Hunk> hunks = textDifferences(a, b);
  EXPECT_EQ(mergedText(a, b, hunks, std::vector<Side>(hunks.size(), Side::Second)), second);
}

TEST(TextDifference, TakesTheChosenRunsAlone) {
  const Lines a = linesOf("1\n2\n3\n4\n");
  const Lines b = linesOf("0\n1\n3\nfour\n");
  const std::vector<Hunk> hunks = textDifferences(a, b);
  ASSERT_EQ(hunks, (std::vector<Hunk>{{0, 0, 0, 1}, {1, 1, 2, 0}, {3, 1, 3, 1}}));
  EXPECT_EQ(mergedText(a, b, hunks, {Side::Second, Side::First, Side::Second}),
            "0\n1\n2\n3\nfour\n");
}

}  // namespace
}  // namespace veldra::host::compare
