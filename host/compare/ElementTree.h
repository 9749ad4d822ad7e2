#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/model/Json.h"

namespace veldra::host::compare {

/// One element of a model file: the unit itself, or any object that stands in a list of another.
struct Element {
  const Json* object;
  std::size_t owner;  ///< Its place in the tree; that of the unit is 0, and its own owner.
  std::string list;   ///< Where in the owner it stands, as a JSON pointer, for example "/elements".
};

/// The elements of a model file's body, each under a key by which the same element is found in
/// another file.
///
/// An element with an identifier is known by that, wherever it stands. One without is known by its
/// owner, its list and what it says of itself: its name, the element that it shows, or its ends.
/// Where several would be the same, they are counted. The body must outlive the tree.
class ElementTree {
 public:
  explicit ElementTree(const Json& body);

  static constexpr std::size_t None = static_cast<std::size_t>(-1);
  static constexpr std::size_t Unit = 0;

  std::size_t size() const { return m_elements.size(); }
  const Element& at(std::size_t place) const { return m_elements[place]; }
  const std::string& keyOf(std::size_t place) const { return *m_keys[place]; }
  /// The place of the element with that key, or `None`.
  std::size_t find(const std::string& key) const;

  /// What people call it: its name, or else its type or list.
  std::string nameOf(std::size_t place) const;
  std::string typeOf(std::size_t place) const;
  /// The names from the unit down to it, joined by "::".
  std::string pathOf(std::size_t place) const;

 private:
  void add(const Json& object, std::size_t owner, std::string list);
  void addBelow(const Json& value, std::size_t owner, const std::string& pointer);
  std::string keyFor(const Json& object, std::size_t owner, const std::string& list) const;

  std::vector<Element> m_elements;
  std::vector<const std::string*> m_keys;
  std::unordered_map<std::string, std::size_t> m_places;
};

/// Whether the value is a list whose entries are elements of their own.
bool isElementList(const Json& value);

/// A key as a part of a JSON pointer.
std::string pointerPart(const std::string& key);

}  // namespace veldra::host::compare
