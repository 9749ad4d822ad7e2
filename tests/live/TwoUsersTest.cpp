// Two users with a folder each, and one server that both use over the network.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/live/Serving.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr char Unit[] = "Brewing/Grinder.vcmp";
constexpr char Other[] = "Milk/Milk.vpkg";
/// In the folder of the first.
constexpr char Sibling[] = "Brewing/Drip Tray.vcmp";

struct Row {
  const char* pack;
  Serve serve;
  const char* noMerge;  ///< Why a fetch does not bring both changes together; null where it does.
};

class TwoUsersTest : public testing::TestWithParam<Row> {
 protected:
  void SetUp() override {
    const std::string program = m_job.tool().traits().program;
    if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    m_job.tool().makeArchive();
    m_address = GetParam().serve(m_job, m_server);
    ASSERT_TRUE(!m_server || m_server->isListening());
    m_job.makeProject(m_address);
    ASSERT_FALSE(HasFailure());
    m_job.cm({"add", "--all", "-m", "all"});
    m_job.become("bob", "second");
    m_job.tool().checkOut(m_address, "second");
    m_job.cm({"connect"});
    EXPECT_FALSE(m_job.isWritable(Unit));
  }

  /// Changes a file without asking the tool.
  void changeUnasked(const std::string& from, const std::string& to) {
    m_job.sandbox().shell("chmod u+w second/" + std::string(Unit));
    m_job.change(Unit, from, to);
  }

  void checkInAsAlice(const std::string& from, const std::string& to) {
    m_job.become("alice", "model");
    m_job.cm({"checkout", Unit});
    m_job.change(Unit, from, to);
    m_job.cm({"checkin", Unit, "-m", "by alice"});
    m_job.become("bob", "second");
  }

  const Tool& tool() const { return m_job.tool(); }

  Job m_job{GetParam().pack};
  std::optional<Server> m_server;
  std::string m_address;
};

class LockingUsersTest : public TwoUsersTest {};

TEST_P(LockingUsersTest, TheSecondCheckOutIsRefusedAndNamesTheHolder) {
  m_job.become("alice", "model");
  m_job.cm({"checkout", Unit});
  m_job.become("bob", "second");
  const bool hasCommand = tool().traits().noLockCommand == nullptr;
  for (const std::string command : {"checkout", "lock"}) {
    if (command == "lock" && !hasCommand) continue;
    for (const std::string other : {Other, Sibling}) {
      SCOPED_TRACE(command + " " + other);
      const Ended refused = m_job.tryCm({command, Unit, other});
      EXPECT_EQ(refused.code, 1) << refused.err;
      EXPECT_THAT(refused.err, AllOf(HasSubstr("alice"), HasSubstr(Unit), Not(HasSubstr(other))));
      EXPECT_FALSE(m_job.isWritable(Unit));
      EXPECT_EQ(tool().holder(other), "bob");
      m_job.cm({hasCommand ? "unlock" : "undo", other});
    }
  }
  EXPECT_EQ(tool().holder(Unit), "alice");
}

TEST_P(LockingUsersTest, AnUndoOfWhatAnotherHoldsDropsOnesOwnChangesAlone) {
  if (tool().traits().noLockCommand != nullptr) GTEST_SKIP() << "a provider undoes check-outs only";
  m_job.become("alice", "model");
  m_job.cm({"checkout", Unit});
  m_job.become("bob", "second");
  const std::string before = m_job.read(Unit);
  changeUnasked("Grinds one portion", "Crushes one portion");
  m_job.cm({"undo", Unit});
  EXPECT_EQ(m_job.read(Unit), before);
  EXPECT_FALSE(m_job.isWritable(Unit));
  EXPECT_EQ(tool().holder(Unit), "alice");
}

TEST_P(TwoUsersTest, ACheckInOnTopOfANewerOneIsRefusedAndNothingIsLost) {
  changeUnasked("Grinds one portion", "Crushes one portion");
  const std::string ofBob = m_job.read(Unit);
  checkInAsAlice("\"5\"", "\"6\"");

  const Ended refused = m_job.tryCm({"checkin", Unit, "-m", "by bob"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr(tool().traits().outOfDate));
  EXPECT_EQ(m_job.read(Unit), ofBob);
  EXPECT_THAT(tool().newestText(Unit), AllOf(HasSubstr("\"6\""), HasSubstr("Grinds")));

  if (GetParam().noMerge != nullptr) {
    EXPECT_NE(m_job.tryCm({"fetch", Unit}).code, 0);
    EXPECT_EQ(m_job.read(Unit), ofBob);
    return;
  }
  m_job.cm({"fetch", Unit});
  EXPECT_THAT(m_job.read(Unit), AllOf(HasSubstr("\"6\""), HasSubstr("Crushes")));
  EXPECT_TRUE(m_job.isWritable(Unit) || tool().traits().noLocks == nullptr);
  m_job.cm({"checkin", Unit, "-m", "by bob"});
  EXPECT_THAT(tool().newestText(Unit), AllOf(HasSubstr("\"6\""), HasSubstr("Crushes")));
  EXPECT_EQ(tool().newestText(Unit), m_job.read(Unit));
}

TEST_P(TwoUsersTest, ACheckInIsNotStoppedByWhatHappensToOtherFiles) {
  m_job.cm({"checkout", Unit, "Machine.vdy"});
  m_job.change(Unit, "Grinds one portion", "Crushes one portion");
  m_job.become("alice", "model");
  m_job.cm({"checkout", Other});
  m_job.change(Other, "Steam", "Hot steam");
  m_job.cm({"checkin", Other, "-m", "by alice"});
  m_job.cm({"delete", "Milk/Steam Wand.vcmp", "-m", "by alice, too"});
  m_job.become("bob", "second");

  m_job.cm({"checkin", Unit, "-m", "by bob"});
  EXPECT_THAT(tool().newestText(Unit), HasSubstr("Crushes one portion"));
  EXPECT_EQ(tool().newestText(Unit), m_job.read(Unit));
  EXPECT_THAT(tool().newestText(Other), HasSubstr("Hot steam"));
  EXPECT_FALSE(tool().files().contains("Milk/Steam Wand.vcmp"));
  EXPECT_TRUE(m_job.isWritable("Machine.vdy")) << "what is checked out stays so";
  m_job.sandbox().write("second/Milk/Whisk.puml", "@startuml\n@enduml\n");
  m_job.cm({"add", "Milk/Whisk.puml", "-m", "new"});
  EXPECT_TRUE(tool().files().contains("Milk/Whisk.puml"));
}

TEST_P(TwoUsersTest, WhatTheArchiveHasNoLongerIsNotFetchedAndNothingIsLost) {
  constexpr char Unchanged[] = "Milk/Steam Wand.vcmp";
  changeUnasked("Grinds one portion", "Crushes one portion");
  const std::string ofBob = m_job.read(Unit);
  m_job.become("alice", "model");
  m_job.cm({"delete", Unchanged, Unit, "-m", "by alice"});
  m_job.become("bob", "second");

  for (const char* unit : {Unit, Unchanged}) {
    const Ended refused = m_job.tryCm({"fetch", unit});
    EXPECT_EQ(refused.code, 3) << refused.out;
    EXPECT_THAT(refused.err, AllOf(HasSubstr(unit), Not(HasSubstr("could not be loaded"))));
  }
  EXPECT_EQ(m_job.read(Unit), ofBob);
  const Ended undone = m_job.tryCm({"undo", Unit});
  EXPECT_THAT(undone.err, Not(HasSubstr("without a word")));
  EXPECT_THAT((std::vector<std::string>{m_job.read(Unit), m_job.tryCm({"kept", "show", Unit}).out}),
              testing::Contains(ofBob));
}

class LockBreakingUsersTest : public TwoUsersTest {};

TEST_P(LockBreakingUsersTest, AfterALockWasTakenAwayNothingIsLostOnEitherSide) {
  m_job.cm({"checkout", Unit});
  m_job.change(Unit, "Grinds one portion", "Crushes one portion");
  const std::string ofBob = m_job.read(Unit);
  m_job.become("alice", "model");
  const std::string file = "'model/" + std::string(Unit) + "'";
  ASSERT_EQ(m_job.sandbox().shell("svn lock -q --force " + file).code, 0);
  m_job.change(Unit, "\"5\"", "\"6\"");
  ASSERT_EQ(m_job.sandbox().shell("svn commit -q -m 'by alice' " + file).code, 0);
  m_job.become("bob", "second");

  const Ended refused = m_job.tryCm({"checkin", Unit, "-m", "by bob"});
  EXPECT_EQ(refused.code, 3) << refused.out;
  EXPECT_THAT(refused.err, HasSubstr(Unit));
  EXPECT_EQ(m_job.read(Unit), ofBob);
  EXPECT_THAT(tool().newestText(Unit), AllOf(HasSubstr("\"6\""), HasSubstr("Grinds")));
  EXPECT_THAT(tool().newestComment(Unit), HasSubstr("by alice"));
}

class MergingUsersTest : public TwoUsersTest {};

TEST_P(MergingUsersTest, ACheckInThatNeedsAMergeOfAnotherFileLosesNothing) {
  changeUnasked("\"5\"", "\"7\"");
  m_job.cm({"checkout", Other});
  m_job.change(Other, "Steam", "Hot steam");
  const std::string ofBob = m_job.read(Unit);
  const std::string otherOfBob = m_job.read(Other);
  checkInAsAlice("\"5\"", "\"6\"");
  const Ended refused = m_job.tryCm({"checkin", Other, "-m", "by bob"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, AllOf(HasSubstr(Unit), HasSubstr("cannot be merged")));
  EXPECT_EQ(m_job.read(Unit), ofBob);
  EXPECT_EQ(m_job.read(Other), otherOfBob);
  EXPECT_TRUE(m_job.isWritable(Other));
  m_job.cm({"undo", Unit});
  m_job.cm({"checkin", Other, "-m", "by bob"});
  EXPECT_EQ(tool().newestText(Other), otherOfBob);
}

TEST_P(MergingUsersTest, ChangesThatDoNotFitTogetherAreKept) {
  changeUnasked("\"5\"", "\"7\"");
  const std::string ofBob = m_job.read(Unit);
  checkInAsAlice("\"5\"", "\"6\"");
  const Ended refused = m_job.tryCm({"fetch", Unit});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("cannot be merged"));
  EXPECT_EQ(m_job.read(Unit), ofBob);
  m_job.cm({"undo", Unit});
  m_job.cm({"fetch", Unit});
  EXPECT_THAT(m_job.read(Unit), HasSubstr("\"6\""));
}

std::string nameOf(const testing::TestParamInfo<Row>& info) {
  std::string name = info.param.pack;
  std::erase(name, ' ');
  return name;
}

constexpr Row Subversion{"Subversion", serveSubversion, nullptr};
constexpr Row Provider{"Subversion provider", serveSubversion, "a provider has no merge"};
constexpr Row Cvs{"CVS", serveCvs, nullptr};
constexpr Row Git{"Git", serveGit, nullptr};
constexpr Row Mercurial{"Mercurial", serveMercurial, nullptr};
constexpr Row Rcs{"RCS", shareDirectory, "RCS leaves a writable file alone"};

INSTANTIATE_TEST_SUITE_P(Packs, TwoUsersTest,
                         testing::Values(Subversion, Provider, Cvs, Git, Mercurial, Rcs), nameOf);
INSTANTIATE_TEST_SUITE_P(Packs, LockingUsersTest, testing::Values(Subversion, Provider, Cvs, Rcs),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Packs, LockBreakingUsersTest, testing::Values(Subversion, Provider),
                         nameOf);
// Where locks keep such changes apart, they cannot arise.
INSTANTIATE_TEST_SUITE_P(Packs, MergingUsersTest, testing::Values(Git, Mercurial), nameOf);

}  // namespace
}  // namespace veldra::live
