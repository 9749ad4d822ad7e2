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

}  // namespace

/// Null after its fault has been reported.
const IPattern* SPPattern::compiled() const {
  if (m_compiled != nullptr || m_isNotValid) return m_compiled.get();
  Host* const host = installedHost();
  if (host == nullptr) return nullptr;
  std::string error;
  m_compiled = host->patterns().compile(m_text, m_options, error);
  m_isNotValid = m_compiled == nullptr;
  if (m_isNotValid) reportPattern(MessageId::PatternNotValid, m_text, error);
  return m_compiled.get();
}

const SPPattern::Captures* SPPattern::foundIf(bool matched) const {
  return matched && !m_match.captures.empty() ? &m_match.captures : nullptr;
}

const SPPattern::Captures* SPPattern::find(std::string_view text, std::size_t from) const {
  const IPattern* const pattern = compiled();
  if (pattern == nullptr) return nullptr;
  const PatternEnd end = pattern->match(text, from, m_match);
  if (end == PatternEnd::GivenUp) reportPattern(MessageId::PatternGivenUp, m_text, {});
  return foundIf(end == PatternEnd::Matched);
}

const SPPattern::Captures* SPPattern::findSurely(std::string_view text, std::size_t& from) const {
  const IPattern* const pattern = compiled();
  return foundIf(pattern != nullptr && pattern->matchSurely(text, from, m_match));
}

bool SPString::m(const std::string& pattern, const std::string& options,
                 std::vector<std::string_view>* captures) const {
  const SPPattern asked(pattern, options);
  const SPPattern::Captures* const found = asked.find(m_text);
  if (found != nullptr && captures != nullptr) *captures = *found;
  return found != nullptr;
}

void SPString::split(const std::string& pattern,
                     const std::function<void(std::string_view)>& take) const {
  PatternSplitter(pattern).finish(m_text, take);
}

template <class Find>
void PatternSplitter::advance(std::string_view text, const Take& take, Find find) {
  while (m_from <= text.size()) {
    const SPPattern::Captures* const found = find();
    if (found == nullptr) break;
    const std::string_view match = found->front();
    const auto start = static_cast<std::size_t>(match.data() - text.data());
    if (match.empty()) {
      // An empty match separates two characters, but makes no empty piece at either end.
      if (start >= text.size()) break;
      m_from = start + 1;
      if (start == m_pieceStart) continue;
    } else {
      m_from = start + match.size();
    }
    const std::string_view piece = text.substr(m_pieceStart, start - m_pieceStart);
    m_pieceStart = start + match.size();
    take(piece);
  }
}

void PatternSplitter::more(std::string_view text, const Take& take) {
  advance(text, take, [&] { return m_pattern.findSurely(text, m_from); });
}

void PatternSplitter::finish(std::string_view text, const Take& take) {
  advance(text, take, [&] { return m_pattern.find(text, m_from); });
  if (m_pieceStart < text.size()) take(text.substr(m_pieceStart));
}

}  // namespace veldra
