#include "host/compare/ModelMerge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <tuple>

namespace veldra::host::compare {
namespace {

/// Makes models, and others that somebody has worked on.
class Modeller {
 public:
  explicit Modeller(unsigned seed) : m_random(seed) {}

  std::size_t upTo(std::size_t end) { return m_random() % end; }

  Json model() {
    Json body{{"format", 1}, {"type", "Package"}, {"name", "P"}, {"id", "unit"}};
    for (std::size_t i = 0; i < 2 + upTo(10); ++i) addTo(body);
    return body;
  }

  Json worked(Json body) {
    for (std::size_t i = 0; i < 1 + upTo(8); ++i) {
      switch (upTo(5)) {
        case 0:
          addTo(*pick(body));
          break;
        case 1:
          take(body);
          break;
        case 2:
          change(*pick(body));
          break;
        case 3:
          move(body);
          break;
        default:
          shuffle(body);
          break;
      }
    }
    return body;
  }

 private:
  /// Every object that may own elements, the unit first.
  static void collect(Json& element, std::vector<Json*>& all) {
    all.push_back(&element);
    for (const char* list : {"elements", "boxes"}) {
      if (!element.contains(list)) continue;
      for (Json& below : element[list]) collect(below, all);
    }
  }
  Json* pick(Json& body) {
    std::vector<Json*> all;
    collect(body, all);
    return all[upTo(all.size())];
  }

  void addTo(Json& owner) {
    Json element{{"type", "Port"}, {"attributes", {{"direction", upTo(3)}, {"a/b~c", "x"}}}};
    const bool hasIdentifier = upTo(4) != 0;
    if (hasIdentifier) element["id"] = std::to_string(++m_identifiers);
    element["name"] = std::string(1, static_cast<char>('a' + upTo(3)));
    owner[upTo(3) == 0 ? "boxes" : "elements"].push_back(std::move(element));
  }

  void change(Json& element) {
    const char* const names[] = {"direction", "a/b~c", "new"};
    Json& attributes = element["attributes"];
    if (!attributes.is_object()) attributes = Json::object();
    const char* const name = names[upTo(3)];
    if (upTo(3) == 0) {
      attributes.erase(name);
    } else {
      attributes[name] = upTo(2) == 0 ? Json(upTo(9)) : Json{{"deep", upTo(2)}};
    }
  }

  /// Takes an element, with what is in it, out of its list; null when the owner has none.
  Json take(Json& body) {
    Json& owner = *pick(body);
    for (const char* list : {"elements", "boxes"}) {
      if (!owner.contains(list) || owner[list].empty()) continue;
      const std::size_t at = upTo(owner[list].size());
      Json taken = owner[list][at];
      owner[list].erase(at);
      return taken;
    }
    return nullptr;
  }
  void move(Json& body) {
    Json taken = take(body);
    if (!taken.is_null()) (*pick(body))["elements"].push_back(std::move(taken));
  }
  void shuffle(Json& body) {
    Json& owner = *pick(body);
    if (!owner.contains("elements")) return;
    auto& list = owner["elements"].get_ref<Json::array_t&>();
    std::shuffle(list.begin(), list.end(), m_random);
  }

  std::mt19937 m_random;
  int m_identifiers = 0;
};

using Name = std::tuple<DifferenceKind, std::string, std::string>;

Name nameOf(const Difference& difference) {
  return {difference.kind, difference.key, difference.attribute};
}

std::size_t differing(const Json& first, const Json& second) {
  return modelDifferences(ElementTree(first), ElementTree(second)).size();
}

/// What was decided, by the name of the difference; what nobody decided stays as it is.
using Decisions = std::map<Name, Side>;

Json mergeBy(const Json& first, const Json& second, const Decisions& decisions) {
  const ElementTree a(first);
  const ElementTree b(second);
  const std::vector<Difference> differences = modelDifferences(a, b);
  std::vector<Side> choices;
  for (const Difference& difference : differences) {
    const auto found = decisions.find(nameOf(difference));
    choices.push_back(found != decisions.end() ? found->second : Side::First);
  }
  return mergedModel(a, b, differences, choices);
}

/// A model, what two people made of it, and what somebody decided about their differences.
struct RandomCase {
  explicit RandomCase(unsigned seed) : modeller(seed) {
    for (const Difference& difference : differences) {
      decisions[nameOf(difference)] = modeller.upTo(2) == 0 ? Side::First : Side::Second;
    }
  }

  Modeller modeller;
  Json base = modeller.model();
  Json first = modeller.worked(base);
  Json second = modeller.worked(base);
  ElementTree a{first};
  ElementTree b{second};
  std::vector<Difference> differences = modelDifferences(a, b);
  Decisions decisions;
};

constexpr unsigned Seeds = 400;

TEST(MergeOfRandomModels, MergingOneSideGivesThatSide) {
  for (unsigned seed = 1; seed <= Seeds; ++seed) {
    const RandomCase one(seed);
    EXPECT_EQ(mergedModel(one.a, one.b, one.differences, {}), one.first) << seed;
    const std::vector<Side> all(one.differences.size(), Side::Second);
    EXPECT_EQ(differing(mergedModel(one.a, one.b, one.differences, all), one.second), 0U) << seed;
  }
}

TEST(MergeOfRandomModels, MergingTwiceChangesNothing) {
  for (unsigned seed = 1; seed <= Seeds; ++seed) {
    const RandomCase one(seed);
    const Json once = mergeBy(one.first, one.second, one.decisions);
    const Json twice = mergeBy(once, one.second, one.decisions);
    EXPECT_EQ(differing(once, twice), 0U) << seed;
  }
}

/// Whether another difference of the element is about something inside this value, or around it:
/// not both of the two can be had.
bool excludesAnother(const RandomCase& one, const Difference& difference) {
  return std::ranges::any_of(one.differences, [&](const Difference& other) {
    return other.key == difference.key && other.attribute != difference.attribute &&
           (other.attribute.starts_with(difference.attribute + '/') ||
            difference.attribute.starts_with(other.attribute + '/'));
  });
}

TEST(MergeOfRandomModels, EachChoiceAboutAnAttributeHolds) {
  std::size_t checked = 0;
  for (unsigned seed = 1; seed <= Seeds; ++seed) {
    const RandomCase one(seed);
    const Json merged = mergeBy(one.first, one.second, one.decisions);
    const ElementTree tree(merged);
    std::set<Name> fromFirst;
    std::set<Name> fromSecond;
    for (const Difference& left : modelDifferences(one.a, tree)) fromFirst.insert(nameOf(left));
    for (const Difference& left : modelDifferences(tree, one.b)) fromSecond.insert(nameOf(left));
    for (const Difference& difference : one.differences) {
      if (difference.kind != DifferenceKind::Changed || excludesAnother(one, difference)) continue;
      if (tree.find(difference.key) == ElementTree::None) continue;
      const Name name = nameOf(difference);
      const bool takesSecond = one.decisions.at(name) == Side::Second;
      EXPECT_EQ(fromFirst.contains(name), takesSecond) << seed << difference.attribute;
      EXPECT_EQ(fromSecond.contains(name), !takesSecond) << seed << difference.attribute;
      ++checked;
    }
  }
  // How many there are depends on how the system's library draws.
  EXPECT_GT(checked, Seeds / 2);
}

/// The elements that were decided against.
std::set<std::string> givenUp(const RandomCase& one) {
  std::set<std::string> keys;
  for (const Difference& difference : one.differences) {
    const Side side = one.decisions.at(nameOf(difference));
    const bool isGivenUp = (difference.kind == DifferenceKind::Removed && side == Side::Second) ||
                           (difference.kind == DifferenceKind::Added && side == Side::First);
    if (isGivenUp) keys.insert(difference.key);
  }
  return keys;
}

TEST(MergeOfRandomModels, NoElementIsEverLost) {
  for (unsigned seed = 1; seed <= Seeds; ++seed) {
    const RandomCase one(seed);
    const Json merged = mergeBy(one.first, one.second, one.decisions);
    const ElementTree tree(merged);
    const std::set<std::string> without = givenUp(one);
    for (const ElementTree* side : {&one.a, &one.b}) {
      for (std::size_t place = 0; place < side->size(); ++place) {
        const std::string& key = side->keyOf(place);
        EXPECT_TRUE(without.contains(key) || tree.find(key) != ElementTree::None) << seed << key;
      }
    }
    for (std::size_t place = 0; place < tree.size(); ++place) {
      const std::string& key = tree.keyOf(place);
      EXPECT_TRUE(one.a.find(key) != ElementTree::None || one.b.find(key) != ElementTree::None)
          << seed << key;
    }
  }
}

Json element(const char* id, Json below = Json::array()) {
  Json made{{"type", "Part"}, {"name", id}, {"id", id}};
  if (!below.empty()) made["elements"] = std::move(below);
  return made;
}
Json unit(Json below) {
  return {{"type", "Package"}, {"name", "U"}, {"id", "U"}, {"elements", std::move(below)}};
}

TEST(ModelMerge, WhatStandsInSomethingThatGoesKeepsAPlace) {
  const struct {
    const char* what;
    Json first;
    Json second;
    Decisions decisions;
    Json merged;
  } rows[] = {
      {"the owner goes, but what is in it shall stay",
       unit({element("x", {element("y")})}),
       unit({element("z")}),
       {{{DifferenceKind::Removed, "#x", ""}, Side::Second}},
       unit({element("x", {element("y")})})},
      {"an element of an added owner brings the owner along",
       unit({element("z")}),
       unit({element("z"), element("x", {element("y")})}),
       {{{DifferenceKind::Added, "#y", ""}, Side::Second}},
       unit({element("z"), element("x", {element("y")})})},
      {"moved into an owner that is not taken over",
       unit({element("y")}),
       unit({element("x", {element("y")})}),
       {{{DifferenceKind::Moved, "#y", ""}, Side::Second}},
       unit({element("y")})},
      {"two moves into each other",
       unit({element("x", {element("y")})}),
       unit({element("y", {element("x")})}),
       {{{DifferenceKind::Moved, "#x", ""}, Side::Second}},
       unit({element("x", {element("y")})})},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(mergeBy(row.first, row.second, row.decisions), row.merged) << row.what;
  }
}

TEST(ModelMerge, NewcomersStandBehindTheSameNeighbour) {
  const Json first = unit({element("a"), element("b"), element("c")});
  const Json second = unit({element("n"), element("c"), element("b"), element("m"), element("o")});
  const ElementTree a(first);
  const ElementTree b(second);
  const std::vector<Difference> differences = modelDifferences(a, b);
  const std::vector<Side> all(differences.size(), Side::Second);
  const Json merged = mergedModel(a, b, differences, all);
  std::string order;
  for (const Json& one : merged["elements"]) order += one["id"].get<std::string>();
  EXPECT_EQ(order, "nbmoc");
}

}  // namespace
}  // namespace veldra::host::compare
