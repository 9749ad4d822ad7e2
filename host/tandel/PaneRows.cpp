#include "host/tandel/PaneRows.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace veldra::host::tandel {

namespace {

using compare::Difference;
using compare::DifferenceKind;
using compare::ElementTree;
using compare::Hunk;

/// A line of one side, and what it stands for, which is the same on the other side.
struct Line {
  std::string identity;
  std::string text;
  std::size_t difference = PaneRow::None;
};

/// Which difference a line shows, by its identity.
using DifferenceOf = std::unordered_map<std::string, std::size_t>;

std::string identityOf(const std::string& key, const std::string& attribute) {
  return key + '\x01' + attribute;
}

DifferenceOf differencesByLine(const std::vector<Difference>& differences) {
  DifferenceOf lines;
  for (std::size_t i = 0; i < differences.size(); ++i) {
    lines.emplace(identityOf(differences[i].key, differences[i].attribute), i);
  }
  return lines;
}

std::string shownValue(const Json& value) {
  std::string text =
      scalarText(value).value_or(value.dump(-1, ' ', false, Json::error_handler_t::replace));
  // A line is a line.
  std::ranges::replace(text, '\n', ' ');
  return text;
}

/// The places of a tree from the unit down, siblings in the order of another tree. Those that the
/// other one does not have among them stay behind the neighbour that they have.
class Order {
 public:
  Order(const ElementTree& tree, const ElementTree& like) : m_below(tree.size()) {
    for (std::size_t place = 1; place < tree.size(); ++place) {
      m_below[tree.at(place).owner].push_back(place);
    }
    for (std::vector<std::size_t>& siblings : m_below) sort(siblings, tree, like);
    add(ElementTree::Unit);
  }
  const std::vector<std::size_t>& places() const { return m_places; }

 private:
  static void sort(std::vector<std::size_t>& siblings, const ElementTree& tree,
                   const ElementTree& like) {
    std::vector<std::pair<std::size_t, std::size_t>> ranked;
    std::size_t rank = 0;
    for (const std::size_t place : siblings) {
      const std::size_t other = like.find(tree.keyOf(place));
      const bool isBeside = other != ElementTree::None &&
                            like.keyOf(like.at(other).owner) == tree.keyOf(tree.at(place).owner);
      if (isBeside) rank = other;
      ranked.emplace_back(rank, place);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, std::size_t>::first);
    for (std::size_t i = 0; i < siblings.size(); ++i) siblings[i] = ranked[i].second;
  }
  // Recursion is bounded by the nesting that a model file may have.
  void add(std::size_t place) {
    m_places.push_back(place);
    for (const std::size_t below : m_below[place]) add(below);
  }

  std::vector<std::vector<std::size_t>> m_below;
  std::vector<std::size_t> m_places;
};

/// The elements of a side as an outline, each with its attributes by name, in the order of `like`.
std::vector<Line> outline(const ElementTree& tree, const ElementTree& like,
                          const DifferenceOf& differences) {
  std::vector<Line> lines;
  std::vector<std::size_t> depths(tree.size(), 0);
  const auto add = [&](const std::string& identity, std::string text) {
    const auto found = differences.find(identity);
    lines.push_back(
        {identity, std::move(text), found != differences.end() ? found->second : PaneRow::None});
  };
  const Order order(tree, like);
  for (const std::size_t place : order.places()) {
    if (place != ElementTree::Unit) depths[place] = depths[tree.at(place).owner] + 1;
    const std::string indent(2 * depths[place], ' ');
    const std::string& key = tree.keyOf(place);
    const std::string type = tree.typeOf(place);
    add(identityOf(key, {}), indent + type + (type.empty() ? "" : " ") + tree.nameOf(place));
    for (const auto& [pointer, value] : compare::attributesOf(*tree.at(place).object)) {
      if (pointer == "/type" || pointer == "/name" || pointer == "/id" || pointer == "/format") {
        if (!differences.contains(identityOf(key, pointer))) continue;
      }
      add(identityOf(key, pointer),
          indent + "    " + compare::shownAttribute(pointer) + ": " + shownValue(*value));
    }
  }
  return lines;
}

void addPair(std::vector<PaneRow>& rows, const Line& first, const Line& second) {
  const bool hasDifference = first.difference != PaneRow::None;
  rows.push_back({.first = first.text,
                  .second = second.text,
                  .difference = hasDifference ? first.difference : second.difference});
}

void addFirst(std::vector<PaneRow>& rows, const Line& line) {
  rows.push_back({.first = line.text, .hasSecond = false, .difference = line.difference});
}

void addSecond(std::vector<PaneRow>& rows, const Line& line) {
  rows.push_back({.second = line.text, .hasFirst = false, .difference = line.difference});
}

compare::Lines identitiesOf(const std::vector<Line>& lines) {
  compare::Lines identities;
  for (const Line& line : lines) identities.push_back(line.identity);
  return identities;
}

std::vector<PaneRow> modelRows(const compare::ModelComparison& model) {
  const DifferenceOf differences = differencesByLine(model.differences);
  const std::vector<Line> first = outline(model.firstTree, model.firstTree, differences);
  const std::vector<Line> second = outline(model.secondTree, model.firstTree, differences);
  std::vector<PaneRow> rows;
  std::size_t a = 0;
  std::size_t b = 0;
  const auto addCommon = [&](std::size_t upTo) {
    while (a < upTo) addPair(rows, first[a++], second[b++]);
  };
  for (const Hunk& hunk : compare::textDifferences(identitiesOf(first), identitiesOf(second))) {
    addCommon(hunk.first);
    for (std::size_t end = a + hunk.firstCount; a < end; ++a) addFirst(rows, first[a]);
    for (std::size_t end = b + hunk.secondCount; b < end; ++b) addSecond(rows, second[b]);
  }
  addCommon(first.size());
  return rows;
}

std::string withoutEnd(std::string_view line) {
  while (line.ends_with('\n') || line.ends_with('\r')) line.remove_suffix(1);
  return std::string(line);
}

std::vector<PaneRow> textRows(const compare::FileComparison& comparison) {
  const compare::Lines& first = comparison.firstLines();
  const compare::Lines& second = comparison.secondLines();
  std::vector<PaneRow> rows;
  std::size_t a = 0;
  std::size_t b = 0;
  const auto addCommon = [&](std::size_t upTo) {
    for (; a < upTo; ++a, ++b) {
      rows.push_back({.first = withoutEnd(first[a]), .second = withoutEnd(second[b])});
    }
  };
  for (std::size_t i = 0; i < comparison.hunks().size(); ++i) {
    const Hunk& hunk = comparison.hunks()[i];
    addCommon(hunk.first);
    for (std::size_t line = 0; line < std::max(hunk.firstCount, hunk.secondCount); ++line) {
      const bool hasFirst = line < hunk.firstCount;
      const bool hasSecond = line < hunk.secondCount;
      rows.push_back({.first = hasFirst ? withoutEnd(first[a + line]) : std::string(),
                      .second = hasSecond ? withoutEnd(second[b + line]) : std::string(),
                      .hasFirst = hasFirst,
                      .hasSecond = hasSecond,
                      .difference = i});
    }
    a += hunk.firstCount;
    b += hunk.secondCount;
  }
  addCommon(first.size());
  return rows;
}

}  // namespace

std::vector<PaneRow> paneRows(const compare::FileComparison& comparison) {
  if (comparison.model() != nullptr) return modelRows(*comparison.model());
  return textRows(comparison);
}

}  // namespace veldra::host::tandel
