#pragma once

#include <optional>

#include "cm/host/SPString.h"
#include "host/platform/PatternCompiler.h"

namespace veldra::host {

using Pcre2MatchData = std::unique_ptr<pcre2_match_data, Pcre2Free<pcre2_match_data_free>>;

/// One pattern of the engine, with the memory that its matches reuse.
///
/// PCRE2 bounds the steps of a match, but only per start position, and a single step may look at
/// the whole text. A short text is therefore searched under a bound that fits its length. A long
/// one is searched like that part by part. What such a bound does not suffice for, and a match that
/// does not fit in a part, is searched by a second form of the pattern, which looks at the clock
/// after each of its items.
class CompiledPattern : public IPattern {
 public:
  /// `code` is the text's compiled form under these option bits. `compiler` must outlive the
  /// pattern.
  CompiledPattern(const PatternCompiler& compiler, std::string_view text, std::uint32_t bits,
                  Pcre2Code code);

  const std::string& text() const { return m_text; }
  PatternEnd match(std::string_view text, std::size_t from, PatternMatch& match) const override;
  bool matchSurely(std::string_view text, std::size_t& from, PatternMatch& match) const override;

 private:
  int search(std::string_view text, std::size_t from) const;
  class Watch;
  static int lookAtWatch(pcre2_callout_block*, void* watch);
  int searchTimed(std::string_view text, std::size_t from) const;
  /// Searches as far as more than `rest` is left. Nothing when a part cannot be decided by itself,
  /// or that end has been reached: there, at `from`, the search has to go on.
  std::optional<int> searchParts(std::string_view text, std::size_t& from, std::size_t rest,
                                 Watch& watch) const;
  int searchWatched(std::string_view text, std::size_t from, Watch& watch) const;
  int run(const pcre2_code* code, std::uint32_t stepLimit, std::string_view text, std::size_t from,
          std::uint32_t options = 0) const;
  void takeCaptures(std::string_view text, PatternMatch& match) const;

  const PatternCompiler& m_compiler;
  std::string m_text;
  std::uint32_t m_bits;
  bool m_allowsParts;
  Pcre2Code m_code;
  mutable Pcre2Code m_timedCode;  ///< Made when it is first needed; most patterns never do.
  mutable unsigned m_timesGivenUp = 0;
  Pcre2MatchData m_data;
  bool m_isForJit;  ///< Nothing of what `pcre2_match` sees to before the JIT's code is needed.
};

}  // namespace veldra::host
