#include "cm/templates/KeywordScanner.h"

namespace veldra {

namespace {

bool isNameStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isNamePart(char c) {
  return isNameStart(c) || (c >= '0' && c <= '9');
}

}  // namespace

bool KeywordScanner::next() {
  for (std::size_t dollar = m_rest.rfind('$'); dollar != std::string::npos;
       dollar = m_rest.rfind('$')) {
    const std::size_t before = m_rest.size() - dollar - 1;
    m_done.append(m_rest.rbegin(), m_rest.rbegin() + static_cast<std::ptrdiff_t>(before));
    m_rest.resize(dollar + 1);
    if (matchAt(dollar)) return true;
    m_done += '$';
    m_rest.pop_back();
  }
  m_done.append(m_rest.rbegin(), m_rest.rend());
  m_rest.clear();
  return false;
}

/// Tries to read a reference whose dollar sign is the next character.
bool KeywordScanner::matchAt(std::size_t dollar) {
  const auto at = [this, dollar](std::size_t offset) {
    return offset <= dollar ? m_rest[dollar - offset] : '\0';
  };
  std::size_t length = 1;
  if (at(length) == '{') ++length;
  if (!isNameStart(at(length))) return false;
  m_name.clear();
  while (isNamePart(at(length))) m_name += at(length++);
  if (at(length) == '}') ++length;
  m_reference.assign(m_rest.rbegin(), m_rest.rbegin() + static_cast<std::ptrdiff_t>(length));
  return true;
}

void KeywordScanner::replace(std::string_view value) {
  m_rest.resize(m_rest.size() - m_reference.size());
  m_rest.append(value.rbegin(), value.rend());
  // A dollar sign just before may begin a reference together with the value.
  if (m_done.ends_with("${")) {
    m_rest.append("{$");
    m_done.resize(m_done.size() - 2);
  } else if (m_done.ends_with('$')) {
    m_rest += '$';
    m_done.pop_back();
  }
}

std::string KeywordScanner::text() const {
  std::string whole;
  whole.reserve(m_done.size() + m_rest.size());
  whole.append(m_done).append(m_rest.rbegin(), m_rest.rend());
  return whole;
}

}  // namespace veldra
