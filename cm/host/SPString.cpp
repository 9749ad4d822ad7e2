#include "cm/host/SPString.h"

#include <set>

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

namespace veldra {

namespace {

/// The patterns whose fault the user of the present host has been told about.
std::set<std::string>& reportedPatterns() {
  static std::set<std::string> reported;
  static unsigned generation = 0;
  if (generation != hostGeneration()) reported.clear();
  generation = hostGeneration();
  return reported;
}

void reportPattern(int messageId, const std::string& pattern, const std::string& reason) {
  if (reportedPatterns().insert(pattern).second) {
    notifyUser(formatMessage(messageId, {pattern, reason}));
  }
}

/// The compiled pattern, or null after its fault has been reported.
const IPattern* compile(const std::string& pattern, const std::string& options) {
  Host* const host = installedHost();
  if (host == nullptr) return nullptr;
  std::string error;
  const IPattern* const compiled = host->patterns().compile(pattern, options, error);
  if (compiled == nullptr) reportPattern(MessageId::PatternNotValid, pattern, error);
  return compiled;
}

bool matches(const IPattern& compiled, const std::string& pattern, std::string_view text,
             std::size_t from, PatternMatch& match) {
  const PatternEnd end = compiled.match(text, from, match);
  if (end == PatternEnd::GivenUp) reportPattern(MessageId::PatternGivenUp, pattern, {});
  return end == PatternEnd::Matched && !match.captures.empty();
}

}  // namespace

bool SPString::m(const std::string& pattern, const std::string& options,
                 std::vector<std::string_view>* captures) const {
  const IPattern* const compiled = compile(pattern, options);
  if (compiled == nullptr) return false;
  // Kept between calls: listings match some hundred thousand times.
  thread_local PatternMatch match;
  if (!matches(*compiled, pattern, m_text, 0, match)) return false;
  if (captures != nullptr) *captures = match.captures;
  return true;
}

void SPString::split(const std::string& pattern,
                     const std::function<void(std::string_view)>& take) const {
  PatternSplitter(pattern).finish(m_text, take);
}

template <class Find>
void PatternSplitter::advance(std::string_view text, const Take& take, Find find) {
  PatternMatch match;
  while (m_from <= text.size() && find(match)) {
    const auto start = static_cast<std::size_t>(match.captures[0].data() - text.data());
    const std::size_t length = match.captures[0].size();
    if (length == 0) {
      // An empty match separates two characters, but makes no empty piece at either end.
      if (start >= text.size()) break;
      m_from = start + 1;
      if (start == m_pieceStart) continue;
    } else {
      m_from = start + length;
    }
    const std::string_view piece = text.substr(m_pieceStart, start - m_pieceStart);
    m_pieceStart = start + length;
    take(piece);
  }
}

void PatternSplitter::more(std::string_view text, const Take& take) {
  const IPattern* const compiled = compile(m_pattern, "");
  if (compiled == nullptr) return;
  advance(text, take,
          [&](PatternMatch& match) { return compiled->matchSurely(text, m_from, match); });
}

void PatternSplitter::finish(std::string_view text, const Take& take) {
  if (const IPattern* const compiled = compile(m_pattern, "")) {
    advance(text, take, [&](PatternMatch& match) {
      return matches(*compiled, m_pattern, text, m_from, match);
    });
  }
  if (m_pieceStart < text.size()) take(text.substr(m_pieceStart));
}

}  // namespace veldra
