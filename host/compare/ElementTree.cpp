#include "host/compare/ElementTree.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veldra::host::compare {

namespace {

/// What an element without an identifier is known by, the best first.
constexpr std::array<const char*, 2> NamingKeys{"name", "element"};
constexpr std::array<const char*, 3> EndKeys{"from", "to", "text"};

std::string_view textOf(const Json& object, const char* key) {
  const Json* const value = member(object, key);
  return value != nullptr && value->is_string()
             ? std::string_view(value->get_ref<const std::string&>())
             : std::string_view();
}

/// A connection from one end to the other; empty for anything else.
std::string ends(const Json& object) {
  if (textOf(object, "from").empty() && textOf(object, "to").empty()) return {};
  std::string text;
  for (const char* key : EndKeys) text.append(textOf(object, key)).append("\n");
  return text;
}

std::string label(const Json& object) {
  for (const char* key : NamingKeys) {
    const std::string_view text = textOf(object, key);
    if (!text.empty()) return std::string(text);
  }
  return ends(object);
}

}  // namespace

bool isElementList(const Json& value) {
  return value.is_array() && !value.empty() &&
         std::all_of(value.begin(), value.end(),
                     [](const Json& entry) { return entry.is_object(); });
}

std::string pointerPart(const std::string& key) {
  if (key.find_first_of("~/") == std::string::npos) return '/' + key;
  std::string part = "/";
  for (const char c : key) {
    if (c == '~') part += "~0";
    if (c == '/') part += "~1";
    if (c != '~' && c != '/') part += c;
  }
  return part;
}

ElementTree::ElementTree(const Json& body) {
  m_elements.push_back({&body, Unit, {}});
  m_keys.push_back(&m_places.emplace(std::string(), Unit).first->first);
  addBelow(body, Unit, {});
}

std::string ElementTree::keyFor(const Json& object, std::size_t owner,
                                const std::string& list) const {
  const std::string_view id = textOf(object, "id");
  if (!id.empty()) return std::string("#").append(id);
  return keyOf(owner) + '\n' + list + '\n' + label(object);
}

void ElementTree::add(const Json& object, std::size_t owner, std::string list) {
  std::string key = keyFor(object, owner, list);
  if (m_places.contains(key)) {
    std::size_t count = 2;
    while (m_places.contains(key + '\n' + std::to_string(count))) ++count;
    key += '\n' + std::to_string(count);
  }
  const std::size_t place = m_elements.size();
  m_elements.push_back({&object, owner, std::move(list)});
  m_keys.push_back(&m_places.emplace(std::move(key), place).first->first);
  addBelow(object, place, {});
}

// Recursion is bounded by the nesting that a model file may have.
void ElementTree::addBelow(const Json& value, std::size_t owner, const std::string& pointer) {
  for (auto entry = value.begin(); entry != value.end(); ++entry) {
    if (!entry->is_structured()) continue;
    const std::string here = pointer + pointerPart(entry.key());
    if (entry->is_object()) addBelow(*entry, owner, here);
    if (!isElementList(*entry)) continue;
    for (const Json& element : *entry) add(element, owner, here);
  }
}

std::size_t ElementTree::find(const std::string& key) const {
  const auto found = m_places.find(key);
  return found == m_places.end() ? None : found->second;
}

std::string ElementTree::typeOf(std::size_t place) const {
  return std::string(textOf(*m_elements[place].object, "type"));
}

std::string ElementTree::nameOf(std::size_t place) const {
  const Element& element = m_elements[place];
  for (const char* key : NamingKeys) {
    const Json* const value = member(*element.object, key);
    const std::optional<std::string> text = value != nullptr ? bytesOfJson(*value) : std::nullopt;
    if (text && !text->empty()) return *text;
  }
  const std::string_view from = textOf(*element.object, "from");
  const std::string_view to = textOf(*element.object, "to");
  if (!from.empty() || !to.empty()) return std::string(from).append(" \u2192 ").append(to);
  const std::string type = typeOf(place);
  return !type.empty() || element.list.empty() ? type : element.list.substr(1);
}

std::string ElementTree::pathOf(std::size_t place) const {
  std::string path = nameOf(place);
  while (place != Unit) {
    place = m_elements[place].owner;
    path = nameOf(place) + "::" + path;
  }
  return path;
}

}  // namespace veldra::host::compare
