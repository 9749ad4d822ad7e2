#include "host/tandel/Tandel.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <sstream>
#include <thread>

#include "host/model/RememberedProjects.h"
#include "host/platform/CommandLine.h"
#include "host/tandel/MergeTarget.h"
#include "host/tandel/PaneRows.h"
#include "tests/host/model/TempModel.h"
#include "tests/host/platform/Variable.h"

namespace veldra::host::tandel {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;

/// Programs of the test find neither settings nor state of this user.
class TandelTest : public testing::Test {
 protected:
  TandelEnd run(const std::vector<std::string>& arguments, const ShowWindow& show = {}) {
    out.str("");
    errors.str("");
    return runTandel(arguments, out, errors, show);
  }
  static std::string unit(const std::string& description) {
    return TempModel::unitText("Component", "Pump", "\"description\": \"" + description + "\"");
  }

  TempDirectory home;
  Variable state{"XDG_STATE_HOME", home.file("state")};
  Variable config{"XDG_CONFIG_HOME", home.file("config")};
  std::ostringstream out;
  std::ostringstream errors;
};

TEST(TandelOptions, TakeTheCommandLineOfTheLauncher) {
  const Result<TandelOptions> all = parseOptions(
      {"a b", "c", "-fromVeldra", "-recursive", "-mergeBack", "-origId", "id_1", "-cm1", "-cm2"});
  ASSERT_TRUE(all) << all.error();
  EXPECT_EQ(all->first + '|' + all->second + '|' + all->projectIdentifier, "a b|c|id_1");
  EXPECT_TRUE(all->fromVeldra && all->isRecursive && all->mergesBack && all->isFirstControlled &&
              all->isSecondControlled && !all->prints);
  const Result<TandelOptions> nameless = parseOptions({"a", "b", "-mergeBack", "-origId", "-cm1"});
  ASSERT_TRUE(nameless);
  EXPECT_TRUE(nameless->isFirstControlled) << "a project without identifier";
  for (const std::vector<std::string>& wrong :
       {std::vector<std::string>{"a"}, {"a", "b", "c"}, {"a", "b", "-unknown"}, {}}) {
    EXPECT_FALSE(parseOptions(wrong)) << wrong.size();
  }
}

TEST_F(TandelTest, EndsByWhatItFound) {
  const TempDirectory place;
  fs::create_directories(place.file("1/deep"));
  fs::create_directories(place.file("2"));
  const std::string a = place.write("1/a.vcmp", unit("wet"));
  place.write("1/deep/x", "only here");
  place.write("2/a.vcmp", unit("dry"));
  place.write("2/new", "only there");
  const std::string b = place.file("2/a.vcmp");
  const std::string one = place.file("1");
  const std::string two = place.file("2");
  const struct {
    std::vector<std::string> arguments;
    TandelEnd end;
    std::vector<std::string> words;  ///< Of either output.
  } rows[] = {
      {{a, a}, TandelEnd::Same, {}},
      {{a, b, "-print"}, TandelEnd::Different, {"description", "wet", "dry", "Pump"}},
      {{one, one, "-recursive"}, TandelEnd::Same, {}},
      {{one, two, "-recursive"}, TandelEnd::Different, {"a.vcmp", "wet", "deep/x", "new"}},
      {{one, two}, TandelEnd::Different, {"a.vcmp", "new"}},
      {{a, two}, TandelEnd::Wrong, {"a.vcmp"}},
      {{a, place.file("none")}, TandelEnd::Wrong, {"none"}},
      {{a}, TandelEnd::Wrong, {}},
      {{"-help"}, TandelEnd::Same, {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(run(row.arguments), row.end) << testing::PrintToString(row.arguments) << errors.str();
    for (const std::string& word : row.words)
      EXPECT_THAT(out.str() + errors.str(), HasSubstr(word));
  }
}

TEST_F(TandelTest, ShowsAWindowWhereThereIsADisplayUnlessItShallPrint) {
  const TempDirectory place;
  const std::string a = place.write("a", "1\n");
  const std::string b = place.write("b", "2\n");
  int shown = 0;
  const ShowWindow show = [&](ReferenceHost&, CompareSession& session, const TandelOptions&) {
    ++shown;
    EXPECT_FALSE(session.isSame());
  };
  EXPECT_EQ(run({a, b}, show), TandelEnd::Same);
  EXPECT_EQ(run({a, b, "-print"}, show), TandelEnd::Different);
  EXPECT_EQ(shown, 1);
}

TEST_F(TandelTest, AToolOfTheUsersChoiceOpensInPlaceOfTheWindow) {
  const TempDirectory place;
  const std::string a = place.write("a b", "1\n");
  const std::string b = place.write("b", "2\n");
  const std::string tool =
      joinCommandLine({VELDRA_TEST_CHILD, "arguments-to", place.file("seen"), "--wait"});
  int shown = 0;
  const ShowWindow show = [&shown](ReferenceHost&, CompareSession&, const TandelOptions&) {
    ++shown;
  };
  fs::create_directories(home.file("config/veldra-cm"));
  const auto choose = [this](const std::string& command) {
    home.write("config/veldra-cm/user.toml", "[General]\nCompareTool = '" + command + "'\n");
  };
  choose(tool);
  EXPECT_EQ(run({a, b}, show), TandelEnd::Same);
  EXPECT_EQ(shown, 0) << errors.str();
  for (int wait = 0; wait < 500 && place.read("seen").empty(); ++wait) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  EXPECT_EQ(place.read("seen"), "--wait|" + a + '|' + b + '|');

  choose(place.file("nowhere"));
  run({a, b}, show);
  EXPECT_EQ(shown, 1) << "better the own window than none";
  EXPECT_THAT(errors.str(), HasSubstr("nowhere"));
}

TEST_F(TandelTest, ChosenSidesGoIntoTheOpenModelsFileWithACopyKept) {
  const TempModel model;
  model.putProject();
  const std::string file = model.put("Deep/Pump.vcmp", unit("wet"));
  rememberProject("M 7", model.path("M.vdy"));
  const TempDirectory sides;
  const std::string first = sides.write("Pump.vcmp", unit("wet"));
  const std::string second = sides.write("other.vcmp", unit("dry"));

  ReferenceHost host({});
  MergeTarget target(host, "M_7");
  ASSERT_EQ(target.problem(), "");
  const Result<std::string> found = target.fileOf(first);
  ASSERT_TRUE(found) << found.error();
  EXPECT_EQ(*found, file);
  EXPECT_TRUE(target.isAsExpected(file, first));

  CompareSession session({{.name = "Pump.vcmp", .first = first, .second = second}});
  std::string problem;
  ASSERT_NE(session.comparison(0, problem), nullptr) << problem;
  EXPECT_FALSE(session.isAnyModified());
  session.choose(0, 0, compare::Side::Second);
  EXPECT_TRUE(session.isModified(0));
  EXPECT_EQ(target.write(file, session.merged(0)), std::nullopt);
  session.markSaved(0);
  EXPECT_FALSE(session.isAnyModified());
  EXPECT_THAT(model.read("Deep/Pump.vcmp"), HasSubstr("dry"));
  ASSERT_EQ(host.kept().list().size(), 1U);
  EXPECT_TRUE(target.isAsExpected(file, first)) << "it wrote that itself";

  model.put("Deep/Pump.vcmp", unit("somebody else's"));
  EXPECT_FALSE(target.isAsExpected(file, first));
  fs::permissions(file, fs::perms::owner_write, fs::perm_options::remove);
  EXPECT_NE(target.write(file, "x"), std::nullopt) << "it is not checked out";
  EXPECT_THAT(model.read("Deep/Pump.vcmp"), HasSubstr("somebody else's"));
}

TEST_F(TandelTest, WhatBelongsToNoUnitIsNotMergedAnywhere) {
  const TempModel model;
  model.putProject();
  model.put("A/Pump.txt", "1");
  model.put("B/Pump.vcmp", unit("wet"));
  rememberProject("M", model.path("M.vdy"));
  const TempDirectory sides;
  ReferenceHost host({});
  EXPECT_NE(MergeTarget(host, "unheard-of").problem(), "");
  MergeTarget target(host, "M");
  EXPECT_FALSE(target.fileOf(sides.write("Grinder.vcmp", unit("wet"))));
  const std::string foreign = TempModel::unitText("Component", "Pump");
  EXPECT_FALSE(target.fileOf(
      sides.write("Pump.vcmp", std::string(foreign).replace(foreign.find("0123"), 4, "9999"))));
}

TEST(PaneRows, PutWhatBelongsTogetherIntoOneRow) {
  const auto show = [](const std::string& first, const std::string& second) {
    std::vector<std::string> lines;
    for (const PaneRow& row : paneRows(compare::FileComparison::of(first, second))) {
      const bool isMarked = row.difference != PaneRow::None;
      lines.push_back((row.hasFirst ? row.first : "-") + (isMarked ? "*|" : "|") +
                      (row.hasSecond ? row.second : "-"));
    }
    return lines;
  };
  EXPECT_THAT(show("1\n2\n", "1\n3\n4\n"), ElementsAre("1|1", "2*|3", "-*|4"));
  const std::string first = TempModel::unitText(
      "Package", "P",
      R"("elements": [{"name": "a", "id": "a", "x": 1}, {"name": "b", "id": "b"}])");
  const std::string second = TempModel::unitText(
      "Package", "P",
      R"("elements": [{"name": "a", "id": "a", "x": 2}, {"name": "c", "id": "c"}])");
  const std::string shuffled = TempModel::unitText(
      "Package", "P",
      R"("elements": [{"name": "b", "id": "b"}, {"name": "a", "id": "a", "x": 1}])");
  EXPECT_THAT(show(first, shuffled),
              ElementsAre("Package P|Package P", "  a|  a", "      x: 1|      x: 1", "  b|  b"));
  EXPECT_THAT(show(first, second), ElementsAre("Package P|Package P", "  a|  a",
                                               "      x: 1*|      x: 2", "  b*|-", "-*|  c"));
}

}  // namespace
}  // namespace veldra::host::tandel
