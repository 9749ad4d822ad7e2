#include "host/compare/ModelDifference.h"

#include <algorithm>
#include <map>
#include <utility>

namespace veldra::host::compare {

namespace {

void collect(const Json& value, const std::string& pointer, Attributes& attributes) {
  for (auto entry = value.begin(); entry != value.end(); ++entry) {
    const bool isList = entry->is_array() && (entry->empty() || isElementList(*entry));
    if (isList || (entry->is_object() && entry->empty())) continue;
    const std::string here = pointer + pointerPart(entry.key());
    if (entry->is_object()) {
      collect(*entry, here, attributes);
    } else {
      attributes.emplace_back(here, &*entry);
    }
  }
}

bool holdsNothing(const Json& value) {
  return value.is_structured() && (value.empty() || isElementList(value));
}

/// Whether two objects have the same attributes, without a list of them: nearly all have.
bool sameAttributes(const Json& first, const Json& second) {
  auto a = first.begin();
  auto b = second.begin();
  const auto skip = [](auto& at, const Json& object) {
    while (at != object.end() && holdsNothing(*at)) ++at;
  };
  for (;; ++a, ++b) {
    skip(a, first);
    skip(b, second);
    if (a == first.end() || b == second.end()) return a == first.end() && b == second.end();
    if (a.key() != b.key()) return false;
    const bool bothObjects = a->is_object() && b->is_object();
    if (bothObjects ? !sameAttributes(*a, *b) : *a != *b) return false;
  }
}

std::string shownValue(const Json& value) {
  return scalarText(value).value_or(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

class Comparison {
 public:
  Comparison(const ElementTree& first, const ElementTree& second)
      : m_first(first), m_second(second) {}

  std::vector<Difference> run() {
    for (std::size_t place = 0; place < m_first.size(); ++place) {
      const std::size_t other = m_second.find(m_first.keyOf(place));
      if (other == ElementTree::None) {
        add(DifferenceKind::Removed, m_first, place);
      } else {
        compare(place, other);
      }
    }
    for (std::size_t place = 0; place < m_second.size(); ++place) {
      if (m_first.find(m_second.keyOf(place)) == ElementTree::None) {
        add(DifferenceKind::Added, m_second, place);
      }
    }
    return std::move(m_found);
  }

 private:
  Difference& add(DifferenceKind kind, const ElementTree& tree, std::size_t place) {
    m_found.push_back({.kind = kind,
                       .key = tree.keyOf(place),
                       .attribute = {},
                       .type = tree.typeOf(place),
                       .path = tree.pathOf(place)});
    return m_found.back();
  }

  void compare(std::size_t place, std::size_t other) {
    const Element& a = m_first.at(place);
    const Element& b = m_second.at(other);
    if (m_first.keyOf(a.owner) != m_second.keyOf(b.owner) || a.list != b.list) {
      Difference& moved = add(DifferenceKind::Moved, m_first, place);
      moved.first = m_first.pathOf(a.owner);
      moved.second = m_second.pathOf(b.owner);
    }
    if (!sameAttributes(*a.object, *b.object)) compareAttributes(place, other);
  }

  void compareAttributes(std::size_t place, std::size_t other) {
    struct Values {
      const Json* first = nullptr;
      const Json* second = nullptr;
    };
    std::map<std::string, Values> values;
    for (auto& [pointer, value] : attributesOf(*m_first.at(place).object)) {
      values[pointer].first = value;
    }
    for (auto& [pointer, value] : attributesOf(*m_second.at(other).object)) {
      values[pointer].second = value;
    }
    for (const auto& [pointer, pair] : values) {
      if (pair.first != nullptr && pair.second != nullptr && *pair.first == *pair.second) continue;
      Difference& changed = add(DifferenceKind::Changed, m_first, place);
      changed.attribute = pointer;
      if (pair.first != nullptr) changed.first = shownValue(*pair.first);
      if (pair.second != nullptr) changed.second = shownValue(*pair.second);
    }
  }

  const ElementTree& m_first;
  const ElementTree& m_second;
  std::vector<Difference> m_found;
};

}  // namespace

Attributes attributesOf(const Json& element) {
  Attributes attributes;
  collect(element, {}, attributes);
  return attributes;
}

std::vector<Difference> modelDifferences(const ElementTree& first, const ElementTree& second) {
  return Comparison(first, second).run();
}

std::string shownAttribute(const std::string& pointer) {
  constexpr std::string_view Common = "/attributes/";
  const bool isCommon = pointer.starts_with(Common);
  std::string name =
      pointer.substr(isCommon ? Common.size() : std::min<std::size_t>(1, pointer.size()));
  std::string shown;
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (name[at] == '~' && at + 1 < name.size()) {
      shown += name[++at] == '1' ? '/' : '~';
    } else {
      shown += name[at] == '/' ? '.' : name[at];
    }
  }
  return shown;
}

}  // namespace veldra::host::compare
