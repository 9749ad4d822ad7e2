#include "host/platform/win32/WideText.h"

#include <windows.h>

#include <algorithm>

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

}  // namespace veldra::host
