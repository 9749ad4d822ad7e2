// The main job with every tool pack: what the program says is held against what the tool says.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using nlohmann::json;
using testing::HasSubstr;

class MainJobTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!isInstalled(programOf(GetParam()))) GTEST_SKIP() << GetParam() << " is not installed";
  }

  /// Runs `veldra-cm` on the project; it must succeed.
  Ended cm(std::vector<std::string> arguments, const std::string& input = {}) {
    arguments.insert(arguments.begin(), {"-p", m_project});
    const Ended ended = m_sandbox.cm(arguments, input);
    EXPECT_EQ(ended.code, 0) << arguments[2] << ": " << ended.err;
    return ended;
  }

  json document(const std::vector<std::string>& arguments) {
    return json::parse(cm(arguments).out);
  }

  /// The entry of a unit in a document, or null.
  static json unitOf(const json& document, const std::string& path) {
    for (const json& unit : document["units"]) {
      if (unit["path"] == path) return unit;
    }
    return nullptr;
  }

  void makeProject() {
    m_sandbox.copySample("model");
    m_sandbox.write("model/docs/LICENSE", "no dot in the name");
    const Ended ended = m_sandbox.cm(
        {"init", "model", "--name", "Machine", "--tool", GetParam(), "--archive", "archive"});
    ASSERT_EQ(ended.code, 0) << ended.err;
  }

  /// The files of the model that are its own, not the tool's.
  std::set<std::string> filesOf(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& [name, state] : m_sandbox.files(folder)) {
      if (!name.starts_with(".svn/")) names.insert(name);
    }
    return names;
  }

  const std::string m_unit = "Brewing/Grinder.vcmp";
  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool = makeTool(GetParam(), m_sandbox);
  std::string m_project = "model";
};

std::string hardComment() {
  std::string comment = "-m \"quoted\" 'single' > out | $log $Unit ${label} %PATH% `id` $(id)\n";
  comment += "second line; (a ? b : c) \\ @head@ é\n";
  while (comment.size() < 100'000)
    comment += "a line of the comment, number " + std::to_string(comment.size()) + "\n";
  return comment;
}

TEST_P(MainJobTest, FromAnEmptyArchiveToHistory) {
  makeProject();
  EXPECT_EQ(m_tool->files(), std::set<std::string>());

  cm({"add", "--all", "-m", "The machine as drawn"});
  EXPECT_EQ(m_tool->files(), filesOf("model"));
  EXPECT_EQ(m_tool->newestText(m_unit), m_sandbox.read("model/" + m_unit));
  EXPECT_FALSE(m_sandbox.isWritable("model/" + m_unit));
  EXPECT_EQ(cm({"add", "--all"}).out, "") << "what is archived is left alone";

  cm({"checkout", "Brewing::Grinder"});
  EXPECT_TRUE(m_sandbox.isWritable("model/" + m_unit));
  EXPECT_NE(m_tool->holder(m_unit), "");
  EXPECT_EQ(unitOf(document({"status", "--json"}), m_unit)["mode"], "RW");

  std::string text = m_sandbox.read("model/" + m_unit);
  text.insert(text.rfind('}'), " ");
  m_sandbox.write("model/" + m_unit, text);
  const std::string comment = hardComment();
  cm({"checkin", m_unit, "-F", "-"}, comment);
  // Too long to be shown.
  EXPECT_TRUE(m_tool->newestComment(m_unit) == comment);
  EXPECT_EQ(m_tool->holder(m_unit), "");
  EXPECT_EQ(m_tool->newestText(m_unit), m_sandbox.read("model/" + m_unit));
  EXPECT_FALSE(m_sandbox.isWritable("model/" + m_unit));

  EXPECT_THAT(cm({"history", m_unit}).out, HasSubstr("The machine as drawn"));
  EXPECT_THAT(document({"--json", "history", m_unit})["units"][0]["message"].get<std::string>(),
              HasSubstr("`id` $(id)"));
  const json inArchive = unitOf(document({"ls", "--json"}), m_unit);
  const json inWorkspace = unitOf(document({"status", "--json"}), m_unit);
  EXPECT_EQ(inArchive["version"], inWorkspace["version"]);
  EXPECT_EQ(inWorkspace["mode"], "RO");
  EXPECT_EQ(inWorkspace["type"], "Component");
}

TEST_P(MainJobTest, ChangesGivenUpAndFilesFetched) {
  makeProject();
  cm({"add", m_unit, "Brewing/Brewing.vpkg", "Machine.vdy"});
  const std::string archived = m_tool->newestText(m_unit);

  cm({"checkout", m_unit});
  m_sandbox.write("model/" + m_unit, archived + " ");
  cm({"undo", m_unit});
  EXPECT_EQ(m_sandbox.read("model/" + m_unit), archived);
  EXPECT_EQ(m_tool->holder(m_unit), "");

  cm({"lock", m_unit});
  EXPECT_NE(m_tool->holder(m_unit), "");
  cm({"unlock", m_unit});
  EXPECT_EQ(m_tool->holder(m_unit), "");

  cm({"checkout", m_unit});
  m_sandbox.write("model/" + m_unit, archived + "\n\n");
  cm({"checkin", "--all", "-m", "-blank lines"});
  const json former = unitOf(document({"ls", "--json"}), m_unit);
  EXPECT_THAT(m_tool->newestComment(m_unit), HasSubstr("-blank lines"));
  cm({"fetch", m_unit, "-l", std::string(GetParam()) == "RCS" ? "1.1" : "1"});
  EXPECT_NE(former["version"], unitOf(document({"status", "--json"}), m_unit)["version"]);
}

TEST_P(MainJobTest, TheSecondUserIsRefusedAndSeesWhoHoldsIt) {
  m_sandbox.become("alice");
  makeProject();
  cm({"add", "--all", "-m", "all"});
  m_tool->makeWorkingCopy("model", "second");
  cm({"checkout", m_unit});
  ASSERT_EQ(m_tool->holder(m_unit), "alice");

  m_sandbox.become("bob");
  m_project = "second";
  for (const char* command : {"checkout", "lock"}) {
    const Ended refused = m_sandbox.cm({"-p", "second", command, m_unit, "Milk/Milk.vpkg"});
    EXPECT_EQ(refused.code, command == std::string("checkout") ? 1 : 3) << refused.err;
    EXPECT_THAT(refused.err, HasSubstr("alice"));
    EXPECT_THAT(refused.err, HasSubstr(m_unit));
    EXPECT_FALSE(m_sandbox.isWritable("second/" + m_unit));
  }
  EXPECT_EQ(unitOf(document({"status", "-u", "--json"}), m_unit)["locker"], "alice");
  EXPECT_EQ(unitOf(document({"status", "-u", "--json"}), "Milk/Milk.vpkg")["locker"], "bob");
  EXPECT_EQ(unitOf(document({"ls", "--json"}), m_unit)["locker"], "alice");
  EXPECT_THAT(cm({"ls"}).out, HasSubstr("alice"));
}

INSTANTIATE_TEST_SUITE_P(Packs, MainJobTest, testing::Values("Subversion", "RCS"),
                         [](const auto& param) { return std::string(param.param); });

}  // namespace
}  // namespace veldra::live
