#include "host/model/CMHeader.h"

#include <algorithm>
#include <array>

namespace veldra::host {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// The keywords of the RCS family and of Subversion.
constexpr std::array<std::string_view, 18> Keywords = {"Id",
                                                       "Revision",
                                                       "Header",
                                                       "Date",
                                                       "Author",
                                                       "Locker",
                                                       "State",
                                                       "Name",
                                                       "RCSfile",
                                                       "Source",
                                                       "Rev",
                                                       "URL",
                                                       "HeadURL",
                                                       "LastChangedRevision",
                                                       "CVSHeader",
                                                       "LastChangedDate",
                                                       "LastChangedBy",
                                                       "Log"};

/// A keyword reference in a text: where it stands and how long its word is.
struct Reference {
  std::size_t start = std::string_view::npos;
  std::size_t wordLength = 0;
  std::size_t end = 0;  ///< Behind the closing dollar sign.
};

bool isKeyword(std::string_view word) {
  return std::find(Keywords.begin(), Keywords.end(), word) != Keywords.end();
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The reference that begins with the dollar sign at `start`; it never spans lines.
Reference referenceAt(std::string_view text, std::size_t start) {
  std::size_t end = start + 1;
  while (end < text.size() && isLetter(text[end])) ++end;
  const std::size_t wordLength = end - start - 1;
  if (end >= text.size() || !isKeyword(text.substr(start + 1, wordLength))) return {};
  if (text[end] == ':') {
    end = text.find_first_of("$\r\n", end);
    if (end == std::string_view::npos) return {};
  }
  return text[end] == '$' ? Reference{start, wordLength, end + 1} : Reference{};
}

Reference findReference(std::string_view text, std::size_t from) {
  for (std::size_t at = text.find('$', from); at != std::string_view::npos;
       at = text.find('$', at + 1)) {
    const Reference reference = referenceAt(text, at);
    if (reference.start != std::string_view::npos) return reference;
  }
  return {};
}

}  // namespace

std::size_t commentHeaderLength(std::string_view text) {
  std::size_t end = text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
  while (text.substr(end).starts_with("//")) {
    const std::size_t lineEnd = text.find('\n', end);
    if (lineEnd == std::string_view::npos) return text.size();
    end = lineEnd + 1;
  }
  return end;
}

std::string keywordLines(std::string_view text) {
  std::string lines;
  for (std::size_t from = 0;;) {
    const Reference reference = findReference(text, from);
    if (reference.start == std::string_view::npos) return lines;
    const std::size_t before = text.find_last_of("\r\n", reference.start);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    from = std::min(text.find_first_of("\r\n", reference.end), text.size());
    lines.append(text.substr(begin, from - begin)).append("\n");
  }
}

std::string withoutExpansions(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t from = 0;;) {
    const Reference reference = findReference(text, from);
    if (reference.start == std::string_view::npos) return plain.append(text.substr(from));
    plain.append(text.substr(from, reference.start + 1 + reference.wordLength - from));
    plain += '$';
    from = reference.end;
  }
}

}  // namespace veldra::host
