#include <windows.h>

#include <array>
#include <cstring>

#include "host/platform/Registry.h"
#include "host/platform/RegistryPlace.h"
#include "host/platform/SystemError.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

constexpr char Machine[] = "HKEY_LOCAL_MACHINE";
constexpr char User[] = "HKEY_CURRENT_USER";

/// 32-bit programs have a view of their own of many keys, and an installer that is one writes its
/// values there.
constexpr std::array<REGSAM, 2> Views = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};

HKEY rootOf(std::string_view place) {
  return place == Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

/// An open key, closed again.
class Key {
 public:
  Key(HKEY root, const std::wstring& name, REGSAM rights) {
    if (RegOpenKeyExW(root, name.c_str(), 0, rights, &m_key) != ERROR_SUCCESS) m_key = nullptr;
  }
  explicit Key(HKEY key) : m_key(key) {}
  ~Key() {
    if (m_key != nullptr) RegCloseKey(m_key);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  explicit operator bool() const { return m_key != nullptr; }
  HKEY get() const { return m_key; }

 private:
  HKEY m_key = nullptr;
};

bool isText(DWORD type) {
  return type == REG_SZ || type == REG_EXPAND_SZ;
}

/// A value as a text: a registry need not end one with a zero, and may end it with several.
std::optional<std::string> textOf(DWORD type, const std::vector<BYTE>& bytes) {
  if (type == REG_DWORD && bytes.size() == sizeof(DWORD)) {
    DWORD number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return std::to_string(number);
  }
  if (!isText(type)) return std::nullopt;
  std::wstring text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += static_cast<wchar_t>(bytes[i] | bytes[i + 1] << 8U);
  }
  text.resize(text.find_last_not_of(L'\0') + 1);
  if (type != REG_EXPAND_SZ) return fromWide(text);
  std::wstring expanded(ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
  ExpandEnvironmentStringsW(text.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
  expanded.resize(expanded.find_last_not_of(L'\0') + 1);
  return fromWide(expanded);
}

/// Adds the values of a key that are not known yet.
void add(RegistryValues& values, HKEY key) {
  DWORD longestName = 0;
  DWORD longestValue = 0;
  if (RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       &longestName, &longestValue, nullptr, nullptr) != ERROR_SUCCESS) {
    return;
  }
  std::wstring name(std::size_t{longestName} + 1, L'\0');
  std::vector<BYTE> bytes(std::size_t{longestValue} + 1);
  for (DWORD i = 0;; ++i) {
    DWORD type = 0;
    auto nameSize = static_cast<DWORD>(name.size());
    auto valueSize = static_cast<DWORD>(bytes.size());
    const LSTATUS result =
        RegEnumValueW(key, i, name.data(), &nameSize, nullptr, &type, bytes.data(), &valueSize);
    // One that has just grown is left out; the next is asked for.
    if (result == ERROR_MORE_DATA) continue;
    if (result != ERROR_SUCCESS) return;
    const auto text = textOf(type, {bytes.begin(), bytes.begin() + valueSize});
    if (text) values.emplace(fromWide({name.data(), nameSize}), *text);
  }
}

std::string unwritten(const std::string& place, const std::string& key, LSTATUS error) {
  return "The registry key " + place + "\\" + key +
         " cannot be written: " + systemErrorText(static_cast<int>(error)) +
         (error == ERROR_ACCESS_DENIED && place == Machine
              ? ". Only administrators may write there; run this as one, or install it for "
                "yourself alone."
              : ".");
}

LSTATUS storeOne(HKEY root, const RegistryEntry& entry) {
  const auto key = toWide(entry.key);
  const auto name = toWide(entry.name);
  const auto value = toWide(entry.value);
  if (!key || !name || !value) return ERROR_NO_UNICODE_TRANSLATION;
  HKEY opened = nullptr;
  const LSTATUS made =
      RegCreateKeyExW(root, key->c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE | KEY_WOW64_64KEY,
                      nullptr, &opened, nullptr);
  if (made != ERROR_SUCCESS) return made;
  const Key closing(opened);
  const bool isThere =
      RegQueryValueExW(opened, name->c_str(), nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
  if (entry.keepsPresent && isThere) return ERROR_SUCCESS;
  return RegSetValueExW(opened, name->c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(value->c_str()),
                        static_cast<DWORD>((value->size() + 1) * sizeof(wchar_t)));
}

}  // namespace

RegistryPlaces systemRegistryPlaces() {
  return {Machine, User};
}

bool SystemRegistry::isPlace(std::string_view place) {
  return place == Machine || place == User;
}

RegistryValues SystemRegistry::values(const std::string& place, const std::string& subkey) {
  RegistryValues values;
  const auto name = toWide(subkey);
  if (!name || name->find(L'\0') != std::wstring::npos) return values;
  for (const REGSAM view : Views) {
    const Key key(rootOf(place), *name, KEY_READ | view);
    if (key) add(values, key.get());
  }
  return values;
}

std::optional<std::string> SystemRegistry::store(const std::string& place,
                                                 const std::vector<RegistryEntry>& entries) {
  for (const RegistryEntry& entry : entries) {
    const LSTATUS error = storeOne(rootOf(place), entry);
    if (error != ERROR_SUCCESS) return unwritten(place, entry.key, error);
  }
  return std::nullopt;
}

}  // namespace veldra::host
