#include "host/platform/win32/ChildEnvironment.h"

#include <windows.h>

#include <string_view>

#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

/// The system looks variables up without regard to case and wants them in that order.
struct NameOrder {
  bool operator()(const std::wstring& left, const std::wstring& right) const {
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_LESS_THAN;
  }
};

using Variables = std::map<std::wstring, std::wstring, NameOrder>;

Variables presentVariables() {
  Variables variables;
  wchar_t* const block = GetEnvironmentStringsW();
  if (block == nullptr) return variables;
  for (std::wstring_view entry(block); !entry.empty();
       entry = std::wstring_view(entry.data() + entry.size() + 1)) {
    // The names of the drives' present folders begin with the sign itself.
    const std::size_t sign = entry.find(L'=', 1);
    if (sign == std::wstring_view::npos) continue;
    variables[std::wstring(entry.substr(0, sign))] = entry.substr(sign + 1);
  }
  FreeEnvironmentStringsW(block);
  return variables;
}

}  // namespace

std::optional<std::wstring> childEnvironment(const std::map<std::string, std::string>& variables) {
  if (variables.empty()) return std::wstring();
  Variables all = presentVariables();
  for (const auto& [name, value] : variables) {
    const auto wideName = toWide(name);
    const auto wideValue = toWide(value);
    if (!wideName || !wideValue) return std::nullopt;
    all[*wideName] = *wideValue;
  }
  std::wstring block;
  for (const auto& [name, value] : all) block.append(name).append(L"=").append(value) += L'\0';
  return block += L'\0';
}

}  // namespace veldra::host
