#include "host/compare/TextDifference.h"

#include <algorithm>
#include <unordered_map>

namespace veldra::host::compare {

namespace {

/// Beyond so many steps the two halves of a text are matched as far as they have come.
constexpr std::ptrdiff_t StepLimit = 4096;

/// Lines as numbers: the same number for the same line.
class LineNumbers {
 public:
  std::vector<std::size_t> of(const Lines& lines) {
    std::vector<std::size_t> numbers;
    numbers.reserve(lines.size());
    for (const std::string_view line : lines) {
      numbers.push_back(m_numbers.emplace(line, m_numbers.size()).first->second);
    }
    return numbers;
  }

 private:
  std::unordered_map<std::string_view, std::size_t> m_numbers;
};

/// A part of both texts.
struct Range {
  std::ptrdiff_t first;
  std::ptrdiff_t firstEnd;
  std::ptrdiff_t second;
  std::ptrdiff_t secondEnd;
};

struct Point {
  std::ptrdiff_t first;
  std::ptrdiff_t second;
};

/// The divide-and-conquer form of Myers' comparison: a shortest way from both ends at once, split
/// where they meet.
class LineComparison {
 public:
  LineComparison(std::vector<std::size_t> first, std::vector<std::size_t> second)
      : m_first(std::move(first)),
        m_second(std::move(second)),
        m_isChanged{std::vector<bool>(m_first.size()), std::vector<bool>(m_second.size())} {
    const std::size_t diagonals = m_first.size() + m_second.size() + 3;
    m_forward.resize(diagonals);
    m_backward.resize(diagonals);
  }

  std::vector<Hunk> run() {
    std::vector<Range> open{{0, size(m_first), 0, size(m_second)}};
    while (!open.empty()) {
      Range range = open.back();
      open.pop_back();
      trim(range);
      if (range.first == range.firstEnd || range.second == range.secondEnd) {
        mark(range);
        continue;
      }
      const Point middle = middleOf(range);
      open.push_back({middle.first, range.firstEnd, middle.second, range.secondEnd});
      open.push_back({range.first, middle.first, range.second, middle.second});
    }
    return hunks();
  }

 private:
  static std::ptrdiff_t size(const std::vector<std::size_t>& lines) {
    return static_cast<std::ptrdiff_t>(lines.size());
  }
  bool same(std::ptrdiff_t first, std::ptrdiff_t second) const {
    return m_first[static_cast<std::size_t>(first)] == m_second[static_cast<std::size_t>(second)];
  }

  void trim(Range& range) const {
    while (range.first < range.firstEnd && range.second < range.secondEnd &&
           same(range.first, range.second)) {
      ++range.first;
      ++range.second;
    }
    while (range.first < range.firstEnd && range.second < range.secondEnd &&
           same(range.firstEnd - 1, range.secondEnd - 1)) {
      --range.firstEnd;
      --range.secondEnd;
    }
  }

  void mark(const Range& range) {
    const auto set = [](std::vector<bool>& lines, std::ptrdiff_t from, std::ptrdiff_t to) {
      std::fill(lines.begin() + from, lines.begin() + to, true);
    };
    set(m_isChanged[0], range.first, range.firstEnd);
    set(m_isChanged[1], range.second, range.secondEnd);
  }

  /// Diagonals may be negative; the arrays have room for all of them.
  std::ptrdiff_t& at(std::vector<std::ptrdiff_t>& ways, std::ptrdiff_t diagonal) const {
    return ways[static_cast<std::size_t>(diagonal + size(m_second) + 1)];
  }

  /// A point on a shortest way through the range, neither its beginning nor its end.
  Point middleOf(const Range& range) {
    const std::ptrdiff_t low = range.first - range.secondEnd;
    const std::ptrdiff_t high = range.firstEnd - range.second;
    const std::ptrdiff_t forwardStart = range.first - range.second;
    const std::ptrdiff_t backwardStart = range.firstEnd - range.secondEnd;
    const bool isOdd = ((forwardStart - backwardStart) & 1) != 0;
    std::ptrdiff_t forwardLow = forwardStart;
    std::ptrdiff_t forwardHigh = forwardStart;
    std::ptrdiff_t backwardLow = backwardStart;
    std::ptrdiff_t backwardHigh = backwardStart;
    at(m_forward, forwardStart) = range.first;
    at(m_backward, backwardStart) = range.firstEnd;
    for (std::ptrdiff_t step = 1;; ++step) {
      widen(m_forward, forwardLow, forwardHigh, low, high, -1);
      for (std::ptrdiff_t d = forwardHigh; d >= forwardLow; d -= 2) {
        const std::ptrdiff_t x = goForward(range, d);
        if (isOdd && backwardLow <= d && d <= backwardHigh && at(m_backward, d) <= x) {
          return {x, x - d};
        }
      }
      widen(m_backward, backwardLow, backwardHigh, low, high, size(m_first) + 1);
      for (std::ptrdiff_t d = backwardHigh; d >= backwardLow; d -= 2) {
        const std::ptrdiff_t x = goBackward(range, d);
        if (!isOdd && forwardLow <= d && d <= forwardHigh && x <= at(m_forward, d)) {
          return {x, x - d};
        }
      }
      if (step >= StepLimit) return farthest(range, forwardLow, forwardHigh);
    }
  }

  /// One more diagonal at each end, or one fewer where the range ends.
  void widen(std::vector<std::ptrdiff_t>& ways, std::ptrdiff_t& lowest, std::ptrdiff_t& highest,
             std::ptrdiff_t low, std::ptrdiff_t high, std::ptrdiff_t unreached) const {
    if (lowest > low) {
      at(ways, --lowest - 1) = unreached;
    } else {
      ++lowest;
    }
    if (highest < high) {
      at(ways, ++highest + 1) = unreached;
    } else {
      --highest;
    }
  }

  std::ptrdiff_t goForward(const Range& range, std::ptrdiff_t diagonal) {
    const std::ptrdiff_t below = at(m_forward, diagonal - 1);
    const std::ptrdiff_t above = at(m_forward, diagonal + 1);
    std::ptrdiff_t x = below < above ? above : below + 1;
    while (x < range.firstEnd && x - diagonal < range.secondEnd && same(x, x - diagonal)) ++x;
    return at(m_forward, diagonal) = x;
  }
  std::ptrdiff_t goBackward(const Range& range, std::ptrdiff_t diagonal) {
    const std::ptrdiff_t below = at(m_backward, diagonal - 1);
    const std::ptrdiff_t above = at(m_backward, diagonal + 1);
    std::ptrdiff_t x = below < above ? below : above - 1;
    while (range.first < x && range.second < x - diagonal && same(x - 1, x - diagonal - 1)) --x;
    return at(m_backward, diagonal) = x;
  }

  /// How far the ways from the beginning have come, for a range that is given up.
  Point farthest(const Range& range, std::ptrdiff_t lowest, std::ptrdiff_t highest) {
    Point best{range.first, range.second};
    for (std::ptrdiff_t d = highest; d >= lowest; d -= 2) {
      const std::ptrdiff_t x = std::min(at(m_forward, d), range.firstEnd);
      const std::ptrdiff_t y = x - d;
      if (y < range.second || y > range.secondEnd || x < range.first) continue;
      if (x + y > best.first + best.second) best = {x, y};
    }
    const std::ptrdiff_t length = best.first - range.first + best.second - range.second;
    const std::ptrdiff_t whole = range.firstEnd - range.first + range.secondEnd - range.second;
    // A split at either corner would lead here again.
    return length > 0 && length < whole ? best : Point{range.first, range.secondEnd};
  }

  std::vector<Hunk> hunks() const {
    std::vector<Hunk> found;
    std::size_t a = 0;
    std::size_t b = 0;
    while (a < m_first.size() || b < m_second.size()) {
      const Hunk start{a, 0, b, 0};
      while (a < m_first.size() && m_isChanged[0][a]) ++a;
      while (b < m_second.size() && m_isChanged[1][b]) ++b;
      if (a > start.first || b > start.second) {
        found.push_back({start.first, a - start.first, start.second, b - start.second});
      }
      if (a < m_first.size()) ++a;
      if (b < m_second.size()) ++b;
    }
    return found;
  }

  std::vector<std::size_t> m_first;
  std::vector<std::size_t> m_second;
  std::vector<bool> m_isChanged[2];
  std::vector<std::ptrdiff_t> m_forward;
  std::vector<std::ptrdiff_t> m_backward;
};

}  // namespace

Lines linesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

std::vector<Hunk> textDifferences(const Lines& first, const Lines& second) {
  LineNumbers numbers;
  std::vector<std::size_t> a = numbers.of(first);
  return LineComparison(std::move(a), numbers.of(second)).run();
}

std::string mergedText(const Lines& first, const Lines& second, const std::vector<Hunk>& hunks,
                       const std::vector<Side>& choices) {
  std::string text;
  std::size_t line = 0;
  for (std::size_t i = 0; i < hunks.size(); ++i) {
    const Hunk& hunk = hunks[i];
    for (; line < hunk.first; ++line) text += first[line];
    const bool takesSecond = i < choices.size() && choices[i] == Side::Second;
    for (std::size_t n = 0; takesSecond && n < hunk.secondCount; ++n)
      text += second[hunk.second + n];
    if (takesSecond) line = hunk.first + hunk.firstCount;
  }
  for (; line < first.size(); ++line) text += first[line];
  return text;
}

}  // namespace veldra::host::compare
