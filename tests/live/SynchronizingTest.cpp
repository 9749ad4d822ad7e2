// Two people on one archive: the second sees in the synchronize logic exactly what the first has
// changed, compares it, takes it over, and loads a unit that only the archive had.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

constexpr char Changed[] = "Brewing/Grinder.vcmp";
constexpr char Mine[] = "Milk/Milk.vpkg";
constexpr char New[] = "Milk/Frother.vcmp";

class SynchronizingTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    const std::string program = programOf(GetParam());
    if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    m_job.tool().makeArchive();
    m_job.makeProject(m_job.tool().archive());
    ASSERT_FALSE(HasFailure());
    // A file in which no tool writes a version.
    m_job.sandbox().write("model/Flow.puml", "@startuml\nA -> B\n@enduml\n");
    m_job.cm({"add", "--all", "-m", "all", "-l", "Yesterday"});
    m_job.become("bob", "second");
    m_job.tool().makeWorkingCopy("model", "second");
    m_job.cm({"connect"});
    step("alice has put the model into the archive, bob has a folder of his own");
  }

  static void step(const std::string& text) { std::cout << "  " << text << '\n'; }

  void workAsAlice() {
    m_job.become("alice", "model");
    m_job.cm({"checkout", Changed});
    m_job.change(Changed, "Grinds one portion", "Grinds two portions");
    m_job.cm({"checkin", Changed, "-m", "two portions"});
    m_job.sandbox().write("model/" + std::string(New), newUnit());
    m_job.cm({"add", New, "-m", "a frother"});
    m_job.become("bob", "second");
    step("alice has changed " + std::string(Changed) + " and added " + New);
  }

  /// A copy of another component with a name and an identity of its own.
  std::string newUnit() {
    std::string text = m_job.read(Changed);
    for (const auto& [from, to] :
         {std::pair<std::string, std::string>{"\"name\": \"Grinder\"", "\"name\": \"Frother\""}}) {
      const std::size_t at = text.find(from);
      EXPECT_NE(at, std::string::npos);
      if (at != std::string::npos) text.replace(at, from.size(), to);
    }
    return text;
  }

  /// "path: state" of everything that differs.
  std::vector<std::string> differences(const json& document) {
    std::vector<std::string> all;
    for (const json& unit : document["units"]) {
      all.push_back(unit["path"].get<std::string>() + ": " + unit["state"].get<std::string>());
      step("bob sees " + all.back() + " (here \"" + unit["version"].get<std::string>() +
           "\", archive \"" + unit["archiveVersion"].get<std::string>() + "\")");
    }
    return all;
  }

  Job m_job{GetParam()};
};

TEST_P(SynchronizingTest, TheSecondSeesWhatTheFirstChangedAndTakesItOver) {
  EXPECT_EQ(m_job.tryCm({"sync"}).code, 0) << "nothing has happened yet";
  workAsAlice();

  const Ended seen = m_job.tryCm({"--json", "sync"});
  EXPECT_EQ(seen.code, 1) << seen.err;
  EXPECT_THAT(differences(json::parse(seen.out)),
              UnorderedElementsAre(std::string(Changed) + ": newer in the archive",
                                   std::string(New) + ": new in the archive"));

  const Ended newest = m_job.tryCm({"compare", Changed});
  EXPECT_EQ(newest.code, 1) << newest.err;
  EXPECT_THAT(newest.out, HasSubstr("Grinds two portions"));
  EXPECT_THAT(m_job.read(Changed), HasSubstr("Grinds one portion"));
  step("bob has compared his " + std::string(Changed) + " with the newest revision");

  const Ended first = m_job.tryCm({"sync", "--take", Changed});
  EXPECT_EQ(first.code, 1) << "the other one still differs\n" << first.err;
  EXPECT_THAT(m_job.read(Changed), HasSubstr("Grinds two portions"));
  step("bob has taken " + std::string(Changed) + " over");
  const Ended yesterday = m_job.tryCm({"compare", Changed, "-l", "Yesterday"});
  EXPECT_EQ(yesterday.code, 1) << yesterday.err;
  EXPECT_THAT(yesterday.out,
              AllOf(HasSubstr("Grinds two portions"), HasSubstr("Grinds one portion")));
  step("bob has compared it with yesterday's revision");

  const Ended all = m_job.tryCm({"sync", "--take", "all"});
  EXPECT_EQ(all.code, 0) << all.out << all.err;
  EXPECT_THAT(m_job.read(New), HasSubstr("Frother"));
  EXPECT_FALSE(Job::unitOf(m_job.document({"status"}), New).is_null());
  step("bob has loaded " + std::string(New) + "; nothing differs any more");
  EXPECT_EQ(m_job.tryCm({"sync"}).code, 0);
}

TEST_P(SynchronizingTest, OwnChangesAreTakenOnlyWhenTheyAreNamedAndACopyIsKept) {
  workAsAlice();
  m_job.sandbox().shell("chmod u+w second/" + std::string(Changed));
  m_job.change(Changed, "Grinds one portion", "Crushes one portion");
  const json document = json::parse(m_job.tryCm({"--json", "sync"}).out);
  EXPECT_EQ(Job::unitOf(document, Changed)["state"], "changed here");
  m_job.tryCm({"sync", "--take", New});
  EXPECT_THAT(m_job.read(Changed), HasSubstr("Crushes one portion"));
  step("bob has left his own change alone");
  m_job.tryCm({"sync", "--take", Changed});
  EXPECT_THAT(m_job.tryCm({"kept", "list"}).out, HasSubstr(Changed));
  step("bob has asked for the archive's version; a copy of his own is kept");
}

TEST_P(SynchronizingTest, AnArchiveThatCannotBeReachedIsNoArchiveInStep) {
  std::filesystem::rename(m_job.tool().archive(), m_job.tool().archive() + "-moved");
  const Ended ended = m_job.tryCm({"sync"});
  EXPECT_EQ(ended.code, 3) << ended.out;
  EXPECT_FALSE(ended.err.empty());
}

INSTANTIATE_TEST_SUITE_P(Packs, SynchronizingTest,
                         testing::Values("Subversion", "Git", "RCS", "CVS", "Mercurial"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
}  // namespace veldra::live
