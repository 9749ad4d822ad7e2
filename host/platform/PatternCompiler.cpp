#include "host/platform/PatternCompiler.h"

#include <array>
#include <new>

namespace veldra::host {

namespace {

constexpr std::size_t JitStackStart = std::size_t{32} << 10;
constexpr std::size_t JitStackMost = std::size_t{64} << 20;
constexpr std::uint32_t HeapLimitKiB = 64 * 1024;
constexpr std::uint32_t DepthLimit = 1'000'000;

struct Option {
  char letter;
  std::uint32_t bit;
};

constexpr std::array<Option, 4> Options = {
    {{'i', PCRE2_CASELESS}, {'m', PCRE2_MULTILINE}, {'s', PCRE2_DOTALL}, {'x', PCRE2_EXTENDED}}};

template <class T>
T made(T object) {
  if (!object) throw std::bad_alloc();
  return object;
}

std::uint32_t bitOf(char letter) {
  for (const Option& option : Options) {
    if (option.letter == letter) return option.bit;
  }
  return 0;
}

std::string compileError(int number, std::size_t offset) {
  std::array<PCRE2_UCHAR, 256> text{};
  pcre2_get_error_message(number, text.data(), text.size());
  return std::string(reinterpret_cast<const char*>(text.data())) + " (at position " +
         std::to_string(offset + 1) + ")";
}

}  // namespace

PatternCompiler::PatternCompiler()
    : m_compileContext(made(pcre2_compile_context_create(nullptr))),
      m_matchContext(made(pcre2_match_context_create(nullptr))),
      m_jitStack(pcre2_jit_stack_create(JitStackStart, JitStackMost, nullptr)) {
  pcre2_set_newline(m_compileContext.get(), PCRE2_NEWLINE_ANYCRLF);
  pcre2_set_heap_limit(m_matchContext.get(), HeapLimitKiB);
  pcre2_set_depth_limit(m_matchContext.get(), DepthLimit);
  // Without a stack of its own the JIT makes do with 32 KiB, too little for long matches.
  pcre2_jit_stack_assign(m_matchContext.get(), nullptr, m_jitStack.get());
}

bool PatternCompiler::parseOptions(std::string_view letters, std::uint32_t& bits,
                                   std::string& error) {
  for (const char letter : letters) {
    const std::uint32_t bit = bitOf(letter);
    bits |= bit;
    if (bit != 0) continue;
    error = "there is no pattern option \"";
    error.append(1, letter).append("\"");
    return false;
  }
  return true;
}

Pcre2Code PatternCompiler::compile(std::string_view text, std::uint32_t bits,
                                   std::string& error) const {
  if (text.data() == nullptr) text = "";
  int number = 0;
  PCRE2_SIZE offset = 0;
  Pcre2Code code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), bits,
                               &number, &offset, m_compileContext.get()));
  if (!code) {
    error = compileError(number, offset);
    return nullptr;
  }
  // Where there is no JIT the interpreter does the same, only slower.
  pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE);
  return code;
}

}  // namespace veldra::host
