#pragma once

#include <memory>

#include "cm/host/SPString.h"

namespace veldra::host {

/// Patterns over PCRE2: Perl's syntax on bytes, a line ends at CR, LF or CRLF.
///
/// Options: "i" ignores case, "m" lets ^ and $ match at every line, "s" lets the dot match line
/// ends, "x" allows blanks and comments in the pattern. Another letter makes the pattern invalid.
///
/// A match is given up when it needs too much memory, or after half a second plus a time in
/// proportion to the text (a fifth of a second for ten megabytes). The half second
/// shrinks for a pattern that is given up again and again.
///
/// The engine keeps the thousand patterns that were asked for last; a pattern that has not been
/// asked for while a thousand others were is let go. For one thread at a time.
class PatternEngine : public IPatternEngine {
 public:
  PatternEngine();
  ~PatternEngine() override;
  PatternEngine(const PatternEngine&) = delete;
  PatternEngine& operator=(const PatternEngine&) = delete;

  std::shared_ptr<const IPattern> compile(std::string_view pattern, std::string_view options,
                                          std::string& error) override;

 private:
  class Cache;
  std::unique_ptr<Cache> m_cache;
};

}  // namespace veldra::host
