#include "host/packs/PackCheck.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "host/packs/TemplateCheck.h"
#include "host/platform/PatternEngine.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

std::string sourceRoot() {
  return fs::absolute(fs::path(__FILE__).parent_path() / "../../..").string();
}

class PackCheck : public testing::Test {
 protected:
  PackCheck() { layers.load({sourceRoot() + "/packs", "", ""}, problems); }
  std::vector<PackMistake> check(const std::string& file) {
    return checkPack(file, {layers, patterns, sourceRoot()});
  }
  Problems problems;
  PropertyLayers layers;
  PatternEngine patterns;
};

TEST_F(PackCheck, TheShippedPacksAreClean) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(sourceRoot() + "/packs")) {
    if (entry.path().extension() != ".toml") continue;
    ++count;
    for (const PackMistake& mistake : check(entry.path().string())) {
      ADD_FAILURE() << sentence(mistake);
    }
  }
  EXPECT_GE(count, 3);
}

TEST_F(PackCheck, TenPlantedMistakesAreTenFindings) {
  const TempDirectory directory;
  const std::string file = directory.write("bad.toml",
                                           "[pack]\n"
                                           "name = 'Bad'\n"
                                           "[ConfigurationManagement.Bad]\n"
                                           "Tool = 'bad --quiet'\n"
                                           "ChekIn = '$Tool commit'\n"
                                           "CheckOut = '$Tool co \"$UnitPaht\"'\n"
                                           "Fetch = '$Tool get ($label ? -r $label : -- $Unit'\n"
                                           "Lock = '$Tool lock \"$UnitPath'\n"
                                           "AddMember = '$Tool ($label ? a) ($mode ? b)'\n"
                                           "UnLock = 'sh \"$OMROOT/packs/bad/undo.sh\"'\n"
                                           "OperationErrorPattern = '(bad|'\n"
                                           "ListArchiveItsVersion = '^\\d+'\n"
                                           "ChildThreadTimeOut = 'ten'\n"
                                           "[ConfigurationManagement.Badd]\n"
                                           "History = '$Tool log'\n");
  struct Row {
    std::size_t line;
    const char* property;
    const char* words;
    const char* nearest;
  };
  const Row rows[] = {
      {5, "ChekIn", "Nobody reads", "CheckIn"},
      {6, "CheckOut", "$UnitPaht", "UnitPath"},
      {7, "Fetch", "never closed", ""},
      {8, "Lock", "double quote", ""},
      {9, "AddMember", "two conditional sections", ""},
      {10, "UnLock", "packs/bad/undo.sh does not exist", ""},
      {11, "OperationErrorPattern", "not valid", ""},
      {12, "ListArchiveItsVersion", "no group", ""},
      {13, "ChildThreadTimeOut", "no number", ""},
      {15, "History", "under \"Badd\"", "Bad"},
  };
  const std::vector<PackMistake> found = check(file);
  for (std::size_t i = 0; i < std::size(rows) && i < found.size(); ++i) {
    EXPECT_EQ(found[i].line, rows[i].line) << sentence(found[i]);
    EXPECT_EQ(found[i].property, rows[i].property);
    EXPECT_THAT(found[i].what, HasSubstr(rows[i].words));
    EXPECT_EQ(found[i].nearest, rows[i].nearest);
  }
  EXPECT_EQ(found.size(), std::size(rows));
}

TEST_F(PackCheck, FilesThatAreNoPacks) {
  const TempDirectory directory;
  const struct {
    const char* text;
    const char* words;
  } rows[] = {
      {"[pack\n", "Line 1"},
      {"", "no table [pack]"},
      {"[pack]\nname = 'X'\n[ConfigurationManagement.X]\nCheckIn = ['a']\n", "Line 4"},
      {"[pack]\nname = 'X'\n[Configuration.X]\nCheckIn = 'a'\n", "subject"},
  };
  for (const auto& row : rows) {
    const std::vector<PackMistake> found = check(directory.write("x.toml", row.text));
    ASSERT_EQ(found.size(), 1U) << row.text;
    EXPECT_THAT(found[0].what, HasSubstr(row.words));
  }
  EXPECT_EQ(check(directory.file("missing.toml")).size(), 1U);
}

/// The recursive operations take the templates of the others; a tool that keeps directories under
/// control has one more.
TEST_F(PackCheck, NamesThatLookLikeTemplatesAndThoseThatAre) {
  const TempDirectory directory;
  const struct {
    const char* name;
    bool isRead;
  } rows[] = {{"AddMember_WithoutCheckOutCheckInDirectory", true},
              {"CheckOutFromArchiveBatch", true},
              {"RecCheckIn", false},
              {"AddDirectory", false},
              {"HeaderBatchBatch", false},
              {"ArchiveBatch", false}};
  for (const auto& row : rows) {
    const std::string text = "[pack]\nname = 'X'\n[ConfigurationManagement.X]\n" +
                             std::string(row.name) + " = 'x $UnitPath'\n";
    EXPECT_EQ(check(directory.write("x.toml", text)).empty(), row.isRead) << row.name;
  }
}

TEST_F(PackCheck, PatternsWithOptionsAndCommentsKeepTheirGroups) {
  const TempDirectory directory;
  const struct {
    const char* pattern;
    bool isFine;
  } rows[] = {{"(?m)^(a)", true},    {"(?|x(a)|y(b))", true}, {"(?<name>a)", true},
              {"(?:a)", false},      {"(?x) a # (", false},   {"\\(a\\)", false},
              {"(?x) (a) # )", true}};
  for (const auto& row : rows) {
    const std::string text = "[pack]\nname = 'X'\n[ConfigurationManagement.X]\nVersionPattern = '" +
                             std::string(row.pattern) + "'\n";
    EXPECT_EQ(check(directory.write("x.toml", text)).empty(), row.isFine) << row.pattern;
  }
}

}  // namespace
}  // namespace veldra::host
