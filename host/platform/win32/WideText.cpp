#include "host/platform/win32/WideText.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cwchar>

namespace veldra::host {

namespace {

/// Folders may not be longer, because a short file name has to fit behind them.
constexpr std::size_t LongestPlain = MAX_PATH - 12 - 1;
constexpr std::wstring_view Unlimited = L"\\\\?\\";
constexpr std::wstring_view UnlimitedShare = L"\\\\?\\UNC\\";

std::wstring fullPath(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

}  // namespace

std::optional<std::wstring> toWide(std::string_view text) {
  if (text.empty()) return std::wstring();
  const auto size = static_cast<int>(text.size());
  const int length =
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string fromWide(std::wstring_view text) {
  if (text.empty()) return {};
  const auto size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

std::wstring nativePath(std::string_view path) {
  std::wstring wide = toWide(path).value_or(std::wstring());
  if (wide.find(L'\0') != std::wstring::npos) return {};
  std::ranges::replace(wide, L'/', L'\\');
  if (wide.starts_with(Unlimited)) return wide;
  // A relative name is short, but what it stands for need not be.
  if (wide.size() <= LongestPlain / 2) return wide;
  const std::wstring full = fullPath(wide);
  if (full.size() <= LongestPlain) return wide;
  if (full.starts_with(L"\\\\")) return std::wstring(UnlimitedShare) + full.substr(2);
  return std::wstring(Unlimited) + full;
}

std::string fromNativePath(std::wstring_view path) {
  if (path.starts_with(UnlimitedShare))
    return "\\\\" + fromWide(path.substr(UnlimitedShare.size()));
  return fromWide(path.starts_with(Unlimited) ? path.substr(Unlimited.size()) : path);
}

}  // namespace veldra::host

#if defined(__MINGW32__)

// With this function GCC's library turns the narrow name of a std::filesystem::path into a wide
// one. The C runtime's own takes every byte for a character, whatever the program's code page says;
// the way back is UTF-8 as it is. What is no UTF-8 becomes the replacement character, which names
// nothing, because a path that throws would be worse.
extern "C" std::size_t mbrtowc(wchar_t* to, const char* from, std::size_t size,
                               std::mbstate_t* state) {
  if (from == nullptr) return 0;
  if (size == 0) return static_cast<std::size_t>(-2);
  if (state != nullptr && *state != 0) {
    // The second half of a pair, for which the last byte was left.
    if (to != nullptr) *to = static_cast<wchar_t>(*state);
    *state = 0;
    return 1;
  }
  const auto first = static_cast<unsigned char>(*from);
  std::size_t bytes = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  std::array<wchar_t, 2> wide{};
  const int count = bytes > size ? 0
                                 : MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, from,
                                                       static_cast<int>(bytes), wide.data(), 2);
  if (count == 0) {
    bytes = 1;
    wide[0] = L'\xFFFD';
  }
  if (count == 2 && state != nullptr) {
    --bytes;
    *state = wide[1];
  }
  if (to != nullptr) *to = wide[0];
  return wide[0] == L'\0' ? 0 : bytes;
}

#endif
