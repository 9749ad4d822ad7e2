#include "host/platform/SystemError.h"

#include <windows.h>

#include <array>

#include "host/platform/win32/WideText.h"

namespace veldra::host {

std::string systemErrorText(int number) {
  std::array<wchar_t, 512> words{};
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
      nullptr, static_cast<DWORD>(number), 0, words.data(), static_cast<DWORD>(words.size()),
      nullptr);
  std::string text = fromWide({words.data(), length});
  while (!text.empty() && (text.back() == ' ' || text.back() == '.')) text.pop_back();
  return text.empty() ? "error " + std::to_string(number) : text;
}

}  // namespace veldra::host
