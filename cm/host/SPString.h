#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veldra {

/// Why a pattern could not be used or a match was given up.
enum class PatternEnd { Matched, NoMatch, Invalid, GivenUp };

/// What one match found. The views point into the text that was searched.
struct PatternMatch {
  PatternEnd end = PatternEnd::NoMatch;
  /// Whole match first, then the capture groups. A group that took no part is a view without data
  /// (`data()` is null), which the module tells from one that matched the empty text.
  std::vector<std::string_view> captures;
};

/// One compiled pattern.
class IPattern {
 public:
  virtual ~IPattern() = default;
  /// Finds the first match at or after `from` and fills `match` (its memory is reused). A match
  /// that would need more than the engine's bounds ends as `GivenUp`, never in a hang.
  virtual PatternEnd match(std::string_view text, std::size_t from, PatternMatch& match) const = 0;
  /// For a text that is still growing: true when there is a match, and the same one would be the
  /// first whatever follows. False when that is not known, or not yet; `from` then stands where the
  /// search may go on when the text has grown.
  virtual bool matchSurely(std::string_view text, std::size_t& from, PatternMatch& match) const {
    (void)text, (void)from, (void)match;
    return false;
  }
};

/// The host's pattern service: Perl-style regular expressions over bytes. Every host has one.
class IPatternEngine {
 public:
  virtual ~IPatternEngine() = default;
  /// The compiled pattern; the engine keeps it, so that asking again is cheap. Whoever asked may
  /// keep it as long as the engine lives. Options: "i" ignores case. Null, with the reason and
  /// place in `error`, when the text is no valid pattern.
  virtual std::shared_ptr<const IPattern> compile(std::string_view pattern,
                                                  std::string_view options, std::string& error) = 0;
};

/// A pattern for one text after another; it is compiled when the first of them comes.
///
/// A pattern that is not valid, or a match that was given up, matches nothing; the user is told
/// once per pattern.
class SPPattern {
 public:
  using Captures = std::vector<std::string_view>;
  explicit SPPattern(std::string text, std::string options = {})
      : m_text(std::move(text)), m_options(std::move(options)) {}

  const std::string& text() const { return m_text; }
  /// The first match at or after `from`: the whole of it, and the groups. Null when there is none.
  /// Good until the pattern is asked again.
  const Captures* find(std::string_view text, std::size_t from = 0) const;
  /// In a text that is still growing, as `IPattern::matchSurely` finds it.
  const Captures* findSurely(std::string_view text, std::size_t& from) const;

 private:
  const IPattern* compiled() const;
  const Captures* foundIf(bool matched) const;

  std::string m_text;
  std::string m_options;
  mutable std::shared_ptr<const IPattern> m_compiled;
  mutable bool m_isNotValid = false;
  mutable PatternMatch m_match;
};

/// A text with the pattern operations of the host.
class SPString {
 public:
  explicit SPString(std::string_view text) : m_text(text) {}

  /// True when the pattern occurs in the text. `captures`, when given, receives the whole match and
  /// the groups.
  bool m(const std::string& pattern, const std::string& options,
         std::vector<std::string_view>* captures = nullptr) const;

  /// Hands on the pieces between the matches of `pattern`, one after another, as Perl's split makes
  /// them with a limit of -1, but without a last empty piece. The views point into the text.
  void split(const std::string& pattern, const std::function<void(std::string_view)>& take) const;

 private:
  std::string_view m_text;
};

/// Splits a text that is still growing, as `SPString::split` would split it in the end.
class PatternSplitter {
 public:
  using Take = std::function<void(std::string_view)>;
  explicit PatternSplitter(const std::string& pattern) : m_pattern(pattern) {}

  /// Hands on the pieces that are sure by now. Each text begins with the one before.
  void more(std::string_view text, const Take& take);
  /// The same with the whole text, to its end.
  void finish(std::string_view text, const Take& take);
  /// How much of the text is done with.
  std::size_t done() const { return m_pieceStart; }

 private:
  template <class Find>
  void advance(std::string_view text, const Take& take, Find find);

  SPPattern m_pattern;
  std::size_t m_pieceStart = 0;
  std::size_t m_from = 0;
};

}  // namespace veldra
