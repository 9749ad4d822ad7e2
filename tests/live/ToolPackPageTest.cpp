// The example of docs/tool-packs.md, taken from the page and put to work.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

/// The block of the page that begins with ```KIND NAME.
std::string blockOf(const std::string& name) {
  std::ifstream in(VELDRA_DOCS "/tool-packs.md");
  std::ostringstream page;
  page << in.rdbuf();
  const std::string text = page.str();
  const std::size_t head = text.find(" " + name + "\n");
  if (head == std::string::npos) return {};
  const std::size_t from = text.find('\n', head) + 1;
  return text.substr(from, text.find("\n```", from) + 1 - from);
}

class ToolPackPageTest : public testing::Test {
 protected:
  ToolPackPageTest() {
    std::string pack = blockOf("shelf.toml");
    const std::string place = "/usr/local/lib/shelf/shelf.sh";
    const std::size_t at = pack.find(place);
    if (at != std::string::npos) pack.replace(at, place.size(), m_sandbox.path("shelf.sh"));
    m_sandbox.write("shelf.sh", blockOf("shelf.sh"));
    m_sandbox.write("home/site.toml", pack);
  }
  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }
  Sandbox m_sandbox;
};

TEST_F(ToolPackPageTest, TheCheckAndTheDoctorAreContent) {
  const Ended check = m_sandbox.cm({"pack", "check", m_sandbox.path("home/site.toml")});
  EXPECT_EQ(check.code, 0) << check.out;
  const Ended doctor = m_sandbox.cm({"doctor", "--tool", "Shelf"});
  EXPECT_EQ(doctor.code, 0) << doctor.out;
  EXPECT_THAT(doctor.out, HasSubstr("ok    round trip: delete"));
  EXPECT_TRUE(m_sandbox.files("tmp").empty()) << "the doctor cleans up behind itself";
}

TEST_F(ToolPackPageTest, ThePackDoesTheDailyWork) {
  m_sandbox.copySample("model");
  const Ended made =
      m_sandbox.cm({"init", "model", "--name", "M", "--tool", "Shelf", "--archive", "shelf"});
  ASSERT_EQ(made.code, 0) << made.err;
  const std::string unit = "Brewing/Grinder.vcmp";
  const Ended added = cm({"add", "--all", "-m", "as drawn"});
  ASSERT_EQ(added.code, 0) << added.err;
  EXPECT_EQ(m_sandbox.read("shelf/" + unit), m_sandbox.read("model/" + unit));
  EXPECT_FALSE(m_sandbox.isWritable("model/" + unit));

  ASSERT_EQ(cm({"checkout", unit}).code, 0);
  const std::string text = m_sandbox.read("model/" + unit) + "\n";
  m_sandbox.write("model/" + unit, text);
  const Ended checkedIn = cm({"checkin", unit, "-m", "finer \"grinding\" $log"});
  ASSERT_EQ(checkedIn.code, 0) << checkedIn.err;
  EXPECT_EQ(m_sandbox.read("shelf/" + unit), text);
  EXPECT_THAT(cm({"history", unit}).out, HasSubstr("finer \"grinding\" $log"));
  const auto listed = nlohmann::json::parse(cm({"--json", "ls"}).out)["units"];
  EXPECT_THAT(listed.dump(), HasSubstr("\"version\":\"2\""));

  m_sandbox.shell("ln -s carol shelf/" + unit + ".holder");
  const Ended refused = cm({"checkout", unit});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("advice:  It is held by carol"));
}

TEST(Doctor, EveryInstalledToolMakesTheRoundTrip) {
  const struct {
    const char* pack;
    const char* program;
  } rows[] = {
      {"Subversion", "svn"}, {"RCS", "ci"}, {"CVS", "cvs"}, {"Git", "git"}, {"Mercurial", "hg"}};
  for (const auto& row : rows) {
    if (!isInstalled(row.program)) continue;
    const Sandbox sandbox;
    sandbox.shell(
        "git config --global user.name A; git config --global user.email a@b; "
        "printf '[ui]\\nusername = A\\n' >home/.hgrc");
    const Ended doctor = sandbox.cm({"--json", "doctor", "--tool", row.pack});
    EXPECT_EQ(doctor.code, 0) << doctor.out;
    EXPECT_EQ(nlohmann::json::parse(doctor.out)["tool"], row.pack);
  }
}

TEST(Doctor, EveryFailingLineSaysWhatToDo) {
  Sandbox sandbox;
  sandbox.write("home/site.toml",
                "[pack]\nname = 'Broken'\n[ConfigurationManagement.Broken]\n"
                "VersionCommand = 'no-such-tool-here --version'\nChekIn = 'x'\n");
  const Ended doctor = sandbox.cm({"--json", "doctor", "--tool", "Broken"});
  EXPECT_EQ(doctor.code, 1);
  int failures = 0;
  const auto document = nlohmann::json::parse(doctor.out);
  for (const auto& check : document["checks"]) {
    if (check["ok"] == true) continue;
    ++failures;
    EXPECT_NE(check["advice"], "") << check;
  }
  EXPECT_EQ(failures, 2);
  EXPECT_EQ(sandbox.cm({"doctor"}).code, 3) << "no tool";
}

class DoctorOfAProject : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("ci")) GTEST_SKIP() << "RCS is not installed";
    m_sandbox.write("model/Flow.puml", "@startuml\n@enduml\n");
    ASSERT_EQ(
        m_sandbox.cm({"init", "model", "--name", "M", "--tool", "RCS", "--archive", "archive"})
            .code,
        0);
  }
  /// The checks by name.
  std::map<std::string, nlohmann::json> checks(std::vector<std::string> options = {}) {
    options.insert(options.end(), {"-p", "model", "--json", "doctor"});
    std::map<std::string, nlohmann::json> checks;
    const auto document = nlohmann::json::parse(m_sandbox.cm(options).out);
    for (const auto& check : document["checks"]) checks[check["name"]] = check;
    return checks;
  }
  Sandbox m_sandbox;
};

TEST_F(DoctorOfAProject, ADryRunAsksNobodyAndFindsNothingWrong) {
  const auto found = checks({"--dry-run"});
  for (const char* name : {"version", "archive"}) {
    EXPECT_EQ(found.at(name)["ok"], true);
    EXPECT_THAT(found.at(name)["finding"], HasSubstr("not asked in a dry run"));
  }
  EXPECT_EQ(found.count("round trip: init"), 0U);
}

TEST_F(DoctorOfAProject, TellsOnceWhatToDoAboutAnArchiveThatIsAway) {
  m_sandbox.shell("mv archive away");
  const auto found = checks();
  EXPECT_EQ(found.at("archive")["ok"], false);
  EXPECT_THAT(found.at("archive")["advice"], HasSubstr("property get Archive"));
  EXPECT_THAT(found.at("archive")["finding"], testing::Not(HasSubstr("advice:")));
  EXPECT_EQ(found.count("rights"), 0U);
  EXPECT_EQ(found.at("round trip: delete")["ok"], true);
}

TEST_F(DoctorOfAProject, StartsNothingForAProjectThatIsNotTrusted) {
  std::string project = m_sandbox.read("model/M.vdy");
  const std::string archive = "\"Archive\":";
  project.insert(project.find(archive), "\"VersionCommand\": \"touch ran\", ");
  m_sandbox.write("model/M.vdy", project);
  const auto found = checks();
  EXPECT_EQ(found.at("trust")["ok"], false);
  EXPECT_THAT(found.at("version")["finding"], HasSubstr("trusted"));
  EXPECT_EQ(found.at("version")["ok"], true);
}

}  // namespace
}  // namespace veldra::live
