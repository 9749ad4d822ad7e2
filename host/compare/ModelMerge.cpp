#include "host/compare/ModelMerge.h"

#include <map>
#include <unordered_map>
#include <utility>

namespace veldra::host::compare {

namespace {

constexpr std::size_t None = ElementTree::None;

/// One element of either side.
struct Node {
  std::size_t first = None;
  std::size_t second = None;
  bool isTaken = true;
  bool isPlacedBySecond = false;  ///< Stands where the second side has it.
};

/// Where lists stand: the owner's node, and the list's JSON pointer.
using ListPlace = std::pair<std::size_t, std::string>;

/// The nodes of both sides, which of them are taken, and where each stands.
class Placement {
 public:
  Placement(const ElementTree& first, const ElementTree& second)
      : m_first(first), m_second(second) {
    for (std::size_t place = 0; place < first.size(); ++place) {
      m_nodes.push_back({.first = place, .second = second.find(first.keyOf(place))});
    }
    m_nodeOfSecond.resize(second.size(), None);
    for (std::size_t node = 0; node < m_nodes.size(); ++node) {
      if (m_nodes[node].second != None) m_nodeOfSecond[m_nodes[node].second] = node;
    }
    for (std::size_t place = 0; place < second.size(); ++place) {
      if (m_nodeOfSecond[place] != None) continue;
      m_nodeOfSecond[place] = m_nodes.size();
      m_nodes.push_back({.second = place, .isTaken = false, .isPlacedBySecond = true});
    }
  }

  /// Follows the second side in a difference that is no attribute's.
  void followSecond(const Difference& difference) {
    Node& node = m_nodes[nodeOf(difference.key)];
    if (difference.kind == DifferenceKind::Added) node.isTaken = true;
    if (difference.kind == DifferenceKind::Removed) node.isTaken = false;
    if (difference.kind == DifferenceKind::Moved) node.isPlacedBySecond = true;
  }

  /// Brings back what others stand in, until everything has a place that leads up to the unit.
  void settle() {
    do {
      for (std::size_t node = 1; node < m_nodes.size(); ++node) {
        if (m_nodes[node].isTaken) giveOwner(node);
      }
    } while (breaksCircle());
  }

  std::size_t nodeOf(const std::string& key) const {
    const std::size_t place = m_first.find(key);
    return place != None ? place : m_nodeOfSecond[m_second.find(key)];
  }
  std::size_t nodeOfSecond(std::size_t place) const { return m_nodeOfSecond[place]; }
  const std::vector<Node>& nodes() const { return m_nodes; }

  std::size_t ownerOf(std::size_t node) const {
    return ownerIn(node, m_nodes[node].isPlacedBySecond);
  }
  ListPlace listOf(std::size_t node) const {
    const Node& at = m_nodes[node];
    const Element& element = at.isPlacedBySecond ? m_second.at(at.second) : m_first.at(at.first);
    return {ownerOf(node), element.list};
  }

 private:
  std::size_t ownerIn(std::size_t node, bool bySecond) const {
    const Node& at = m_nodes[node];
    return bySecond ? m_nodeOfSecond[m_second.at(at.second).owner] : m_first.at(at.first).owner;
  }

  /// An owner that goes gives way to the one of the other side; where both go, it stays.
  void giveOwner(std::size_t node) {
    while (!m_nodes[ownerOf(node)].isTaken) {
      Node& at = m_nodes[node];
      const bool hasOther = at.first != None && at.second != None;
      if (hasOther && m_nodes[ownerIn(node, !at.isPlacedBySecond)].isTaken) {
        at.isPlacedBySecond = !at.isPlacedBySecond;
        return;
      }
      node = ownerOf(node);
      m_nodes[node].isTaken = true;
    }
  }

  /// Two moves into each other would cut both off from the unit. Those in the circle then stand
  /// where the first side has them. False when there is no circle.
  bool breaksCircle() {
    std::vector<std::size_t> seenFrom(m_nodes.size(), None);
    for (std::size_t start = 1; start < m_nodes.size(); ++start) {
      std::size_t node = m_nodes[start].isTaken ? start : 0;
      while (node != 0 && seenFrom[node] == None) {
        seenFrom[node] = start;
        node = ownerOf(node);
      }
      if (node != 0 && seenFrom[node] == start) {
        placeCircleByFirst(node);
        return true;
      }
    }
    return false;
  }
  void placeCircleByFirst(std::size_t member) {
    std::size_t node = member;
    do {
      const std::size_t next = ownerOf(node);
      if (m_nodes[node].first != None) m_nodes[node].isPlacedBySecond = false;
      node = next;
    } while (node != member);
  }

  const ElementTree& m_first;
  const ElementTree& m_second;
  std::vector<Node> m_nodes;  ///< Those of the first side first, each at its place there.
  std::vector<std::size_t> m_nodeOfSecond;
};

/// A copy without the elements in it.
Json withoutElements(const Json& object) {
  Json copy = Json::object();
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    if (isElementList(*entry)) continue;
    copy[entry.key()] = entry->is_object() ? withoutElements(*entry) : *entry;
  }
  return copy;
}

std::vector<std::string> partsOf(const std::string& pointer) {
  std::vector<std::string> parts;
  for (const char c : pointer) {
    if (c == '/') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  for (std::string& part : parts) {
    std::string key;
    for (std::size_t at = 0; at < part.size(); ++at) {
      const bool isEscape = part[at] == '~' && at + 1 < part.size();
      key += !isEscape ? part[at] : part[++at] == '1' ? '/' : '~';
    }
    part = std::move(key);
  }
  return parts;
}

/// The value under the pointer; objects that lead to it are made, in place of anything else.
Json& valueAt(Json& element, const std::string& pointer) {
  Json* at = &element;
  for (const std::string& part : partsOf(pointer)) {
    if (!at->is_object()) *at = Json::object();
    at = &(*at)[part];
  }
  return *at;
}

void erase(Json& element, const std::string& pointer) {
  std::vector<std::pair<Json*, std::string>> way;
  Json* at = &element;
  for (const std::string& part : partsOf(pointer)) {
    if (!at->is_object() || !at->contains(part)) return;
    way.emplace_back(at, part);
    at = &(*at)[part];
  }
  // Objects that hold nothing any more go with it.
  for (auto step = way.rbegin(); step != way.rend(); ++step) {
    step->first->erase(step->second);
    if (!step->first->empty()) return;
  }
}

class Merge {
 public:
  Merge(const ElementTree& first, const ElementTree& second)
      : m_first(first), m_second(second), m_placement(first, second) {}

  Json run(const std::vector<Difference>& differences, const std::vector<Side>& choices) {
    for (std::size_t i = 0; i < differences.size() && i < choices.size(); ++i) {
      if (choices[i] == Side::First) continue;
      if (differences[i].kind == DifferenceKind::Changed) {
        m_changes[m_placement.nodeOf(differences[i].key)].push_back(differences[i].attribute);
      } else {
        m_placement.followSecond(differences[i]);
      }
    }
    m_placement.settle();
    fillLists();
    return build(0);
  }

 private:
  /// The order of the first side; what comes by the second one stands behind the same neighbour as
  /// there.
  void fillLists() {
    const std::vector<Node>& nodes = m_placement.nodes();
    for (std::size_t node = 1; node < nodes.size(); ++node) {
      if (nodes[node].isTaken && !nodes[node].isPlacedBySecond) {
        const ListPlace place = m_placement.listOf(node);
        m_lists[place.first][place.second].push_back(node);
      }
    }
    std::map<ListPlace, std::size_t> neighbours;
    std::map<ListPlace, std::map<std::size_t, std::vector<std::size_t>>> newcomers;
    for (std::size_t place = 1; place < m_second.size(); ++place) {
      const std::size_t node = m_placement.nodeOfSecond(place);
      if (!nodes[node].isTaken) continue;
      const ListPlace list = m_placement.listOf(node);
      if (!nodes[node].isPlacedBySecond) {
        neighbours[list] = node;
        continue;
      }
      const auto neighbour = neighbours.find(list);
      newcomers[list][neighbour != neighbours.end() ? neighbour->second : None].push_back(node);
    }
    for (const auto& [place, groups] : newcomers)
      insert(groups, m_lists[place.first][place.second]);
  }

  static void insert(const std::map<std::size_t, std::vector<std::size_t>>& groups,
                     std::vector<std::size_t>& list) {
    std::vector<std::size_t> whole;
    const auto append = [&](std::size_t neighbour) {
      const auto group = groups.find(neighbour);
      if (group == groups.end()) return;
      whole.insert(whole.end(), group->second.begin(), group->second.end());
    };
    append(None);
    for (const std::size_t node : list) {
      whole.push_back(node);
      append(node);
    }
    list = std::move(whole);
  }

  // Recursion is bounded by the nesting of the two sides.
  Json build(std::size_t node) {
    const Node& at = m_placement.nodes()[node];
    const ElementTree& tree = at.first != None ? m_first : m_second;
    Json element = withoutElements(*tree.at(at.first != None ? at.first : at.second).object);
    applyChanges(node, element);
    const auto lists = m_lists.find(node);
    if (lists == m_lists.end()) return element;
    for (const auto& [pointer, members] : lists->second) {
      Json list = Json::array();
      for (const std::size_t member : members) list.push_back(build(member));
      valueAt(element, pointer) = std::move(list);
    }
    return element;
  }

  void applyChanges(std::size_t node, Json& element) {
    const auto changes = m_changes.find(node);
    if (changes == m_changes.end()) return;
    const Attributes wanted = attributesOf(*m_second.at(m_placement.nodes()[node].second).object);
    const std::map<std::string, const Json*> values(wanted.begin(), wanted.end());
    // What goes first makes room for what comes.
    for (const std::string& pointer : changes->second) {
      if (!values.contains(pointer)) erase(element, pointer);
    }
    for (const std::string& pointer : changes->second) {
      if (values.contains(pointer)) valueAt(element, pointer) = *values.at(pointer);
    }
  }

  const ElementTree& m_first;
  const ElementTree& m_second;
  Placement m_placement;
  std::unordered_map<std::size_t, std::vector<std::string>> m_changes;
  std::unordered_map<std::size_t, std::map<std::string, std::vector<std::size_t>>> m_lists;
};

}  // namespace

Json mergedModel(const ElementTree& first, const ElementTree& second,
                 const std::vector<Difference>& differences, const std::vector<Side>& choices) {
  return Merge(first, second).run(differences, choices);
}

}  // namespace veldra::host::compare
