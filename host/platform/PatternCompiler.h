#pragma once

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace veldra::host {

/// Frees what PCRE2 handed out.
template <auto free>
struct Pcre2Free {
  template <class T>
  void operator()(T* object) const {
    free(object);
  }
};

using Pcre2Code = std::unique_ptr<pcre2_code, Pcre2Free<pcre2_code_free>>;
using Pcre2CompileContext =
    std::unique_ptr<pcre2_compile_context, Pcre2Free<pcre2_compile_context_free>>;
using Pcre2MatchContext = std::unique_ptr<pcre2_match_context, Pcre2Free<pcre2_match_context_free>>;
using Pcre2JitStack = std::unique_ptr<pcre2_jit_stack, Pcre2Free<pcre2_jit_stack_free>>;

/// What all patterns of an engine share: how they are compiled, and the bounds of their matches.
class PatternCompiler {
 public:
  PatternCompiler();

  /// The bits of option letters. False for a letter that is no option, with a text in `error`.
  static bool parseOptions(std::string_view letters, std::uint32_t& bits, std::string& error);

  /// Null, with the reason and the place in `error`, when the text is no valid pattern.
  Pcre2Code compile(std::string_view text, std::uint32_t bits, std::string& error) const;

  pcre2_match_context* matchContext() const { return m_matchContext.get(); }

 private:
  Pcre2CompileContext m_compileContext;
  Pcre2MatchContext m_matchContext;
  Pcre2JitStack m_jitStack;
};

}  // namespace veldra::host
