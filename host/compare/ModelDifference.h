#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/compare/ElementTree.h"

namespace veldra::host::compare {

enum class DifferenceKind {
  Added,    ///< Only the second side has the element.
  Removed,  ///< Only the first side has it.
  Moved,    ///< It has another owner, or stands in another list.
  Changed,  ///< One of its attributes differs.
};

/// One thing in which two models differ.
struct Difference {
  DifferenceKind kind = DifferenceKind::Changed;
  std::string key;        ///< Of the element, in both trees.
  std::string attribute;  ///< A JSON pointer into the element; only for changes.
  std::string type;       ///< Of the element, as people read it.
  std::string path;       ///< Likewise, from the unit down.
  /// The attribute's values, or the owners of an element that was moved, as people read them.
  /// Nothing where that side has none.
  std::optional<std::string> first{};
  std::optional<std::string> second{};
};

/// What differs, in the order of the first side, then what only the second one has. The order in
/// which attributes and elements stand in a file is no difference, nor is an empty list.
std::vector<Difference> modelDifferences(const ElementTree& first, const ElementTree& second);

/// The attribute's name as people read it.
std::string shownAttribute(const std::string& pointer);

/// The attributes of an element by their JSON pointers: everything but the elements in it.
using Attributes = std::vector<std::pair<std::string, const Json*>>;
Attributes attributesOf(const Json& element);

}  // namespace veldra::host::compare
