#include "host/platform/Secrets.h"

#include <algorithm>
#include <cstddef>

namespace veldra::host {

namespace {

constexpr std::string_view Mask = "***";
// What stands before "user:password@server"; the second one is of CVS.
constexpr std::string_view AddressMarks[] = {"://", ":pserver:"};
constexpr std::string_view Option = "password";

/// A part of a text.
struct Span {
  std::size_t from = std::string_view::npos;
  std::size_t to = std::string_view::npos;
  bool isFound() const { return from != std::string_view::npos; }
};

/// The password of the first address at or after `at`.
Span inAddress(std::string_view text, std::string_view mark, std::size_t at) {
  while ((at = text.find(mark, at)) != std::string_view::npos) {
    at += mark.size();
    const std::string_view rest = text.substr(at);
    const std::string_view server = rest.substr(0, rest.find_first_of("/ \t\r\n\"'<>"));
    const std::size_t sign = server.rfind('@');
    const std::size_t colon = server.find(':');
    if (sign != std::string_view::npos && colon < sign && sign > colon + 1) {
      return {at + colon + 1, at + sign};
    }
  }
  return {};
}

bool isInLongOption(std::string_view text, std::size_t word) {
  const std::size_t start = text.substr(0, word).find_last_of(" \t\"'=\n");
  return text.substr(start == std::string_view::npos ? 0 : start + 1).starts_with("--");
}

/// The value of the first password option at or after `at`.
Span inOption(std::string_view text, std::size_t at) {
  while ((at = text.find(Option, at)) != std::string_view::npos) {
    const std::size_t word = at;
    at += Option.size();
    if (at >= text.size() || (text[at] != '=' && text[at] != ' ')) continue;
    if (!isInLongOption(text, word)) continue;
    const bool isQuoted = text.substr(at + 1).starts_with('"');
    const std::size_t from = at + (isQuoted ? 2 : 1);
    const std::size_t to =
        std::min(text.find_first_of(isQuoted ? "\"" : " \t\r\n\"", from), text.size());
    if (to > from) return {from, to};
  }
  return {};
}

Span nextSecret(std::string_view text, std::size_t at) {
  Span first = inOption(text, at);
  for (const std::string_view mark : AddressMarks) {
    const Span address = inAddress(text, mark, at);
    if (address.from < first.from) first = address;
  }
  return first;
}

}  // namespace

std::string withoutSecrets(std::string_view text) {
  std::string out;
  std::size_t done = 0;
  for (Span found = nextSecret(text, 0); found.isFound(); found = nextSecret(text, done)) {
    out.append(text.substr(done, found.from - done)).append(Mask);
    done = found.to;
  }
  return out.append(text.substr(done));
}

bool holdsSecret(std::string_view text) {
  return nextSecret(text, 0).isFound();
}

}  // namespace veldra::host
