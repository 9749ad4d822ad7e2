#include "host/compare/ComparisonReport.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "host/resources/MessageNumbers.h"

namespace veldra::host::compare {

namespace {

constexpr std::ptrdiff_t ColumnWidth = 12;

std::string inOneLine(const std::string& text) {
  std::string line;
  for (const char c : text) line += c == '\n' ? "\\n" : std::string(1, c);
  return line;
}

/// Filled up with blanks to the width of a column; a character may have several bytes.
std::string inColumn(std::string text) {
  const auto characters = std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
  return text.append(
      static_cast<std::size_t>(std::max<std::ptrdiff_t>(ColumnWidth - characters, 1)), ' ');
}

void printHunk(const FileComparison& comparison, const Hunk& hunk, std::ostream& out) {
  out << "@@ -" << hunk.first + 1 << ',' << hunk.firstCount << " +" << hunk.second + 1 << ','
      << hunk.secondCount << " @@\n";
  const auto print = [&out](char mark, const Lines& lines, std::size_t from, std::size_t count) {
    for (std::size_t line = from; line < from + count; ++line) {
      const std::string_view text = lines[line];
      out << mark << text << (text.ends_with('\n') ? "" : "\n");
    }
  };
  print('-', comparison.firstLines(), hunk.first, hunk.firstCount);
  print('+', comparison.secondLines(), hunk.second, hunk.secondCount);
}

}  // namespace

std::string wordFor(DifferenceKind kind, const Texts& texts) {
  return texts(MessageNumber::CompareKinds + static_cast<int>(kind), {});
}

std::string wordFor(FilePair::State state, const Texts& texts) {
  return texts(MessageNumber::CompareStates + static_cast<int>(state), {});
}

std::string detailOf(const Difference& difference, const Texts& texts) {
  const std::string none = texts(MessageNumber::CompareNone, {});
  const std::string first = inOneLine(difference.first.value_or(none));
  const std::string second = inOneLine(difference.second.value_or(none));
  if (difference.kind == DifferenceKind::Moved) {
    return texts(MessageNumber::CompareMove, {first, second});
  }
  if (difference.kind != DifferenceKind::Changed) return {};
  return texts(MessageNumber::CompareChange, {shownAttribute(difference.attribute), first, second});
}

void printComparison(const FileComparison& comparison, const Texts& texts, std::ostream& out) {
  if (comparison.isSame()) return;
  if (comparison.kind() == ContentKind::Binary) {
    out << texts(MessageNumber::CompareBinary, {}) << '\n';
    return;
  }
  if (const ModelComparison* const model = comparison.model()) {
    for (const Difference& difference : model->differences) {
      const std::string detail = detailOf(difference, texts);
      out << inColumn(wordFor(difference.kind, texts)) << inColumn(difference.type)
          << inOneLine(difference.path) << (detail.empty() ? "" : "  ") << detail << '\n';
    }
    return;
  }
  for (const Hunk& hunk : comparison.hunks()) printHunk(comparison, hunk, out);
}

}  // namespace veldra::host::compare
