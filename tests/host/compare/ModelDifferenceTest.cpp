#include "host/compare/ModelDifference.h"

#include <gmock/gmock.h>

#include "host/compare/FileComparison.h"

namespace veldra::host::compare {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Words[] = {"+", "-", ">", "~"};

/// The differences as lines: kind, path, attribute, values.
std::vector<std::string> lines(const std::string& first, const std::string& second) {
  const Json a = Json::parse(first);
  const Json b = Json::parse(second);
  std::vector<std::string> found;
  for (const Difference& one : modelDifferences(ElementTree(a), ElementTree(b))) {
    std::string line = Words[static_cast<std::size_t>(one.kind)] + one.path;
    if (!one.attribute.empty()) line += ' ' + shownAttribute(one.attribute);
    if (one.first || one.second) {
      line += ' ' + one.first.value_or("?") + '=' + one.second.value_or("?");
    }
    found.push_back(line);
  }
  return found;
}

TEST(ModelDifference, TellsElementsAndAttributesApart) {
  const struct {
    const char* what;
    const char* first;
    const char* second;
    std::vector<std::string> lines;
  } rows[] = {
      {"order is no difference, nor an empty list",
       R"({"name":"U","elements":[{"id":"1","name":"a"},{"id":"2","name":"b","attributes":{}}]})",
       R"({"elements":[{"name":"b","id":"2"},{"boxes":[],"name":"a","id":"1"}],"name":"U"})",
       {}},
      {"an element that is known by its identifier is renamed, not replaced",
       R"({"name":"U","elements":[{"id":"1","name":"a"}]})",
       R"({"name":"U","elements":[{"id":"1","name":"b"}]})",
       {"~U::a name a=b"}},
      {"moved and changed at once",
       R"({"name":"U","elements":[{"id":"1","name":"a"},{"id":"2","name":"b"}]})",
       R"({"name":"U","elements":[{"id":"2","name":"b","elements":[{"id":"1","name":"a","x":1}]}]})",
       {">U::a U=U::b", "~U::a x ?=1"}},
      {"without identifiers: boxes by what they show, connections by their ends",
       R"({"name":"D","boxes":[{"element":"A","x":1}],"connections":[{"from":"A","to":"B"}]})",
       R"({"name":"D","boxes":[{"element":"A","x":2}],"connections":[{"from":"A","to":"C"}]})",
       {"~D::A x 1=2", "-D::A → B", "+D::A → C"}},
      {"several of the same name are counted",
       R"({"name":"U","elements":[{"name":"a"},{"name":"a"}]})",
       R"({"name":"U","elements":[{"name":"a"}]})",
       {"-U::a"}},
      {"attributes at any depth, in lists and with odd names",
       R"({"name":"U","attributes":{"p":[1,2],"a/b":"x"},"q":{"r":{"s":true}}})",
       R"({"name":"U","attributes":{"p":[1,3],"a/b":"y"},"q":{"r":{}}})",
       {"~U a/b x=y", "~U p [1,2]=[1,3]", "~U q.r.s true=?"}},
  };
  for (const auto& row : rows) EXPECT_EQ(lines(row.first, row.second), row.lines) << row.what;
}

TEST(FileComparison, ChoosesHowToCompareByContent) {
  const std::string model =
      "// $"
      "Id$\n{\"format\":1,\"type\":\"Component\",\"name\":\"C\"}\n";
  const std::string expanded =
      "// $"
      "Id: C 7 2026 $\n{\"format\":1,\"name\":\"C\",\"type\":\"Component\"}\n";
  const struct {
    const char* what;
    std::string first;
    std::string second;
    ContentKind kind;
    std::size_t size;
  } rows[] = {
      {"the header is the tool's", model, expanded, ContentKind::Model, 0},
      {"half a model is text", model, model.substr(0, 20), ContentKind::Text, 1},
      {"texts", "a\nb\n", "a\nc\n", ContentKind::Text, 1},
      {"equal bytes that are no text", std::string("\0", 1), std::string("\0", 1),
       ContentKind::Binary, 0},
      {"other bytes that are no text", std::string("\0a", 2), "a", ContentKind::Binary, 1},
      {"nothing at all", "", "", ContentKind::Text, 0},
  };
  for (const auto& row : rows) {
    const FileComparison comparison = FileComparison::of(row.first, row.second);
    EXPECT_EQ(comparison.kind(), row.kind) << row.what;
    EXPECT_EQ(comparison.size(), row.size) << row.what;
  }
  EXPECT_EQ(FileComparison::of(model, expanded).merged({}),
            "// $"
            "Id$\n{\n  \"format\": 1,\n  \"type\": \"Component\",\n  \"name\": \"C\"\n}\n");
}

}  // namespace
}  // namespace veldra::host::compare
