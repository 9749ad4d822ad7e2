#include "host/platform/CompiledPattern.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <new>
#include <optional>

namespace veldra::host {

namespace {

using Clock = std::chrono::steady_clock;

// About a tenth of a second's worth of bytes looked at, over all start positions and steps.
constexpr std::size_t QuickBytes = std::size_t{1} << 28;
// With fewer steps than these, hardly any pattern would get through.
constexpr std::size_t FewestQuickSteps = 100;
constexpr std::size_t MostQuickSteps = 10'000;
// Most texts are records of a listing, for which two divisions would take as long as the search.
constexpr std::size_t ShortText = 160;
static_assert(ShortText * ShortText * MostQuickSteps <= QuickBytes);

// A long text is searched part by part as long as nothing that is found out about a part depends on
// what follows it.
constexpr std::size_t PartBytes = 1024;
constexpr std::uint32_t StepsPerPart = QuickBytes / PartBytes / PartBytes;

// Halved whenever a pattern is given up: one that fails so on each record of a listing must not
// cost this much a hundred thousand times.
constexpr auto BaseTime = std::chrono::microseconds(500'000);
constexpr unsigned MostHalvings = 10;
constexpr auto TimePerByte = std::chrono::nanoseconds(20);
// Each item of a pattern may look at the whole text, so that the clock cannot wait for many of
// them.
constexpr unsigned ItemsPerLook = 16;

bool isForJit(const pcre2_code* code) {
  std::size_t size = 0;
  std::uint32_t options = 0;
  pcre2_pattern_info(code, PCRE2_INFO_JITSIZE, &size);
  pcre2_pattern_info(code, PCRE2_INFO_ALLOPTIONS, &options);
  // A text that is no UTF-8 must not get there.
  return size != 0 && (options & PCRE2_UTF) == 0;
}

std::size_t quickSteps(std::size_t bytes) {
  if (bytes <= ShortText) return MostQuickSteps;
  return std::min(QuickBytes / bytes / bytes, MostQuickSteps);
}

/// No line ends there: at the end of what it sees, PCRE2 takes no line to begin, and it would see
/// half of a CRLF.
std::size_t endOfPart(std::string_view text, std::size_t from) {
  std::size_t end = std::min(from + PartBytes, text.size());
  while (end > from && (text[end - 1] == '\n' || text[end - 1] == '\r')) --end;
  return end;
}

}  // namespace

/// How long a search may take.
class CompiledPattern::Watch {
 public:
  Watch(std::size_t bytes, unsigned halvings)
      : m_time(BaseTime / (1U << halvings) + TimePerByte * bytes) {}

  bool isOver() {
    if (++m_items % ItemsPerLook != 0) return false;
    const Clock::time_point now = Clock::now();
    // Most searches end before the first look.
    if (!m_deadline) m_deadline = now + m_time;
    return now > *m_deadline;
  }

 private:
  std::chrono::nanoseconds m_time;
  std::optional<Clock::time_point> m_deadline;
  unsigned m_items = 0;
};

int CompiledPattern::lookAtWatch(pcre2_callout_block*, void* watch) {
  return static_cast<Watch*>(watch)->isOver() ? PCRE2_ERROR_CALLOUT : 0;
}

CompiledPattern::CompiledPattern(const PatternCompiler& compiler, std::string_view text,
                                 std::uint32_t bits, Pcre2Code code)
    : m_compiler(compiler),
      m_text(text),
      m_bits(bits),
      // The first would match at the beginning of every part; the second may end the whole search.
      m_allowsParts(text.find("\\G") == std::string_view::npos &&
                    text.find("(*") == std::string_view::npos),
      m_code(std::move(code)),
      m_data(pcre2_match_data_create_from_pattern(m_code.get(), nullptr)),
      m_isForJit(isForJit(m_code.get())) {
  if (!m_data) throw std::bad_alloc();
}

PatternEnd CompiledPattern::match(std::string_view text, std::size_t from,
                                  PatternMatch& match) const {
  match.end = PatternEnd::NoMatch;
  if (from <= text.size()) {
    if (text.data() == nullptr) text = "";
    const int result = search(text, from);
    if (result >= 0) {
      takeCaptures(text, match);
      return match.end = PatternEnd::Matched;
    }
    if (result != PCRE2_ERROR_NOMATCH) match.end = PatternEnd::GivenUp;
  }
  match.captures.clear();
  return match.end;
}

int CompiledPattern::search(std::string_view text, std::size_t from) const {
  const std::size_t steps = quickSteps(text.size() - from + 1);
  if (steps < FewestQuickSteps) return searchTimed(text, from);
  const int result = run(m_code.get(), static_cast<std::uint32_t>(steps), text, from);
  return result == PCRE2_ERROR_MATCHLIMIT ? searchTimed(text, from) : result;
}

int CompiledPattern::searchTimed(std::string_view text, std::size_t from) const {
  Watch watch(text.size() - from, m_timesGivenUp);
  const std::optional<int> found = searchParts(text, from, PartBytes, watch);
  const int result = found ? *found : searchWatched(text, from, watch);
  if (result == PCRE2_ERROR_CALLOUT) m_timesGivenUp = std::min(m_timesGivenUp + 1, MostHalvings);
  return result;
}

std::optional<int> CompiledPattern::searchParts(std::string_view text, std::size_t& from,
                                                std::size_t rest, Watch& watch) const {
  if (!m_allowsParts || text.size() - from <= rest) return std::nullopt;
  // Only now, because most patterns never see a long text.
  pcre2_jit_compile(m_code.get(), PCRE2_JIT_PARTIAL_HARD);
  while (text.size() - from > rest) {
    if (watch.isOver()) return PCRE2_ERROR_CALLOUT;
    std::size_t next = endOfPart(text, from);
    const int result =
        run(m_code.get(), StepsPerPart, text.substr(0, next), from, PCRE2_PARTIAL_HARD);
    if (result >= 0) return result;
    if (result == PCRE2_ERROR_PARTIAL) {
      // No match begins before this one, which would like to see more.
      next = pcre2_get_startchar(m_data.get());
    } else if (result != PCRE2_ERROR_NOMATCH) {
      return std::nullopt;
    }
    if (next == from) return std::nullopt;
    from = next;
  }
  return std::nullopt;
}

bool CompiledPattern::matchSurely(std::string_view text, std::size_t& from,
                                  PatternMatch& match) const {
  match.captures.clear();
  match.end = PatternEnd::NoMatch;
  if (from > text.size()) return false;
  Watch watch(text.size() - from, m_timesGivenUp);
  const std::optional<int> found = searchParts(text, from, 0, watch);
  if (!found || *found < 0) return false;
  takeCaptures(text, match);
  match.end = PatternEnd::Matched;
  return true;
}

int CompiledPattern::searchWatched(std::string_view text, std::size_t from, Watch& watch) const {
  if (!m_timedCode) {
    std::string error;
    m_timedCode = m_compiler.compile(m_text, m_bits | PCRE2_AUTO_CALLOUT, error);
    if (!m_timedCode) return PCRE2_ERROR_NOMEMORY;
  }
  pcre2_set_callout(m_compiler.matchContext(), lookAtWatch, &watch);
  const auto noLimit = std::numeric_limits<std::uint32_t>::max();
  const int result = run(m_timedCode.get(), noLimit, text, from);
  pcre2_set_callout(m_compiler.matchContext(), nullptr, nullptr);
  return result;
}

int CompiledPattern::run(const pcre2_code* code, std::uint32_t stepLimit, std::string_view text,
                         std::size_t from, std::uint32_t options) const {
  pcre2_set_match_limit(m_compiler.matchContext(), stepLimit);
  const auto find = m_isForJit && code == m_code.get() ? pcre2_jit_match : pcre2_match;
  return find(code, reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), from, options,
              m_data.get(), m_compiler.matchContext());
}

void CompiledPattern::takeCaptures(std::string_view text, PatternMatch& match) const {
  const std::size_t count = pcre2_get_ovector_count(m_data.get());
  const PCRE2_SIZE* const offsets = pcre2_get_ovector_pointer(m_data.get());
  // Mostly there are as many as in the text before.
  if (match.captures.size() != count) match.captures.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    const PCRE2_SIZE start = offsets[2 * i];
    const PCRE2_SIZE end = offsets[2 * i + 1];
    const bool tookPart = start != PCRE2_UNSET && start <= end;
    match.captures[i] =
        tookPart ? std::string_view(text.data() + start, end - start) : std::string_view();
  }
}

}  // namespace veldra::host
