#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <thread>

#include "cm/scc/StoredFileEntryPoint.h"
#include "tests/live/ProviderSession.h"
#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

namespace fs = std::filesystem;
using namespace scc;
using testing::HasSubstr;

constexpr LONG Held =
    SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER | SCC_STATUS_OUTEXCLUSIVE;
constexpr LONG HeldByOther = SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOTHER | SCC_STATUS_OUTEXCLUSIVE;

/// A folder `work` that user bob has open, and alice with a working copy `hers` and plain svn.
class SubversionProviderTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("svn")) GTEST_SKIP() << "svn is not installed";
    setenv("HOME", m_sandbox.path("home").c_str(), 1);
    m_sandbox.become("alice");
    fs::create_directory(m_sandbox.path("work"));
    ASSERT_EQ(m_provider.connect(m_sandbox.path("work"), "bob"), SCC_OK) << m_provider.takeTexts();
    ProviderSession::takeTexts();
  }

  std::string file(const std::string& name) const { return m_sandbox.path("work/" + name); }

  /// A file under control.
  std::string controlled(const std::string& name, const std::string& text = "first\n") {
    m_sandbox.write("work/" + name, text);
    EXPECT_EQ(m_provider.add({file(name)}), SCC_OK) << ProviderSession::takeTexts();
    return file(name);
  }

  /// A shell of alice's in a working copy of her own, brought up to date.
  Ended alice(const std::string& script) const {
    return m_sandbox.shell("[ -d hers ] || svn co -q " + m_provider.url() +
                           " hers\ncd hers && svn up -q && " + script);
  }

  /// Alice changes a file.
  void aliceCommits(const std::string& name, const std::string& text) const {
    const Ended ended = alice("svn lock -q " + name + " && printf '" + text + "' >" + name +
                              " && svn ci -q -m hers " + name);
    ASSERT_EQ(ended.code, 0) << ended.err;
  }

  std::string inStore(const std::string& name) const {
    return m_sandbox.run({"svn", "cat", m_provider.url() + "/" + name + "@"}).out;
  }

  Sandbox m_sandbox;
  ProviderSession m_provider;
};

TEST_F(SubversionProviderTest, IntroducesItself) {
  EXPECT_EQ(m_provider.entry<SccGetVersionFn>("SccGetVersion")(), SCC_VERSION_1_3);
  EXPECT_EQ(m_provider.name(), "Veldra Subversion");
  const auto caps = static_cast<DWORD>(m_provider.capabilities());
  EXPECT_TRUE(caps & SCC_CAP_REENTRANT);
  EXPECT_FALSE(caps & SCC_CAP_RUNSCC);
}

TEST_F(SubversionProviderTest, RefusesCallsOutOfOrder) {
  EXPECT_EQ(m_provider.connect(m_sandbox.path("work")), SCC_E_PROJECTALREADYOPEN);
  EXPECT_EQ(m_provider.close(), SCC_OK);
  EXPECT_EQ(m_provider.close(), SCC_E_PROJNOTOPEN);
  EXPECT_EQ(m_provider.checkOut({file("a")}), SCC_E_PROJNOTOPEN);
  EXPECT_EQ(m_provider.query({file("a")}), std::vector<LONG>{SCC_E_PROJNOTOPEN});
  int stranger = 0;
  EXPECT_EQ(m_provider.entry<SccCloseProjectFn>("SccCloseProject")(&stranger),
            SCC_E_INITIALIZEFAILED);
  EXPECT_EQ(m_provider.open("no url", m_sandbox.path("work")), SCC_E_PROJSYNTAXERR);
  EXPECT_EQ(m_provider.open("file://" + m_sandbox.path("nowhere"), m_sandbox.path("work")),
            SCC_E_UNKNOWNPROJECT);
}

TEST_F(SubversionProviderTest, RefusesNamesThatAreNone) {
  const auto query = m_provider.entry<SccQueryInfoFn>("SccQueryInfo");
  LPCSTR names[] = {nullptr, "", "relative"};
  for (LPCSTR& name : names) {
    LONG status = 0;
    EXPECT_EQ(query(m_provider.context(), 1, &name, &status), SCC_E_INVALIDFILEPATH);
    EXPECT_EQ(status, SCC_STATUS_INVALID);
  }
  LONG status = 0;
  EXPECT_EQ(query(m_provider.context(), 1, nullptr, &status), SCC_E_INVALIDFILEPATH);
}

TEST_F(SubversionProviderTest, TakesAFileThroughItsLife) {
  m_sandbox.write("work/a.txt", "$Id$\n");
  const std::string a = file("a.txt");
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_NOTCONTROLLED);
  ASSERT_EQ(m_provider.add({a}), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED);
  EXPECT_FALSE(m_sandbox.isWritable("work/a.txt"));
  EXPECT_THAT(m_sandbox.read("work/a.txt"), HasSubstr("$Id: a.txt "));
  EXPECT_EQ(m_provider.add({a}), SCC_E_FILEALREADYEXISTS);

  ASSERT_EQ(m_provider.checkOut({a}, "mine"), SCC_OK);
  EXPECT_TRUE(m_sandbox.isWritable("work/a.txt"));
  EXPECT_EQ(m_provider.status(a), Held);
  EXPECT_EQ(m_provider.checkOut({a}), SCC_E_ALREADYCHECKEDOUT);
  m_sandbox.write("work/a.txt", "second\n");
  EXPECT_EQ(m_provider.status(a), Held | SCC_STATUS_MODIFIED);

  ASSERT_EQ(m_provider.checkIn({a}, "the\r\nreason"), SCC_OK);
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED);
  EXPECT_FALSE(m_sandbox.isWritable("work/a.txt"));
  EXPECT_EQ(inStore("a.txt"), "second\n");
  EXPECT_THAT(m_sandbox.run({"svn", "log", m_provider.url()}).out, HasSubstr("the\nreason"));
  EXPECT_EQ(m_provider.checkIn({a}, "again"), SCC_E_NOTCHECKEDOUT);
}

TEST_F(SubversionProviderTest, CheckInOfAnUnchangedFileGivesTheLockBack) {
  const Names both = {controlled("a"), controlled("b")};
  ASSERT_EQ(m_provider.checkOut(both), SCC_OK);
  m_sandbox.write("work/b", "changed\n");
  ASSERT_EQ(m_provider.checkIn(both, "one of two"), SCC_OK);
  EXPECT_EQ(m_provider.query(both), (std::vector<LONG>{1, 1}));
  ASSERT_EQ(m_provider.checkOut(both), SCC_OK);
  m_sandbox.write("work/b", "changed again\n");
  ASSERT_EQ(m_provider.checkIn(both, "kept", SCC_KEEP_CHECKEDOUT), SCC_OK);
  EXPECT_EQ(m_provider.query(both), (std::vector<LONG>{Held, Held}));
}

TEST_F(SubversionProviderTest, GoesOnWhereAKilledProgramLeftTheRecords) {
  const std::string a = controlled("a");
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK);
  m_sandbox.write("work/a", "second\n");
  m_sandbox.shell(
      "root=$(svn info --show-item repos-root-url work)\n"
      "hook=${root#file://}/hooks/pre-commit\n"
      "printf '#!/bin/sh\\nkill -9 $PPID\\n' >$hook; chmod +x $hook\n"
      "PATH=${PATH#*:} svn ci --username bob -q -m killed work/a; rm $hook");
  ASSERT_THAT(m_sandbox.shell("svn update work").err, HasSubstr("E155004")) << "nothing to mend";
  EXPECT_EQ(m_provider.checkIn({a}, "after all"), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(inStore("a"), "second\n");
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED);
}

TEST_F(SubversionProviderTest, UndoBringsTheFileBackAndGivesTheLockBack) {
  const std::string a = controlled("a");
  EXPECT_EQ(m_provider.undo({a}), SCC_E_NOTCHECKEDOUT);
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK);
  m_sandbox.write("work/a", "spoilt\n");
  ASSERT_EQ(m_provider.undo({a}), SCC_OK);
  EXPECT_EQ(m_sandbox.read("work/a"), "first\n");
  EXPECT_FALSE(m_sandbox.isWritable("work/a"));
  EXPECT_EQ(alice("svn lock a").code, 0);
}

TEST_F(SubversionProviderTest, TellsWhoHoldsAFile) {
  const std::string a = controlled("a");
  ASSERT_EQ(alice("svn lock -q -m 'for the new pump' a").code, 0);
  EXPECT_EQ(m_provider.status(a), HeldByOther);
  ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.checkOut({a}), SCC_E_FILEOUTEXCLUSIVE);
  const std::string text = ProviderSession::takeTexts();
  EXPECT_THAT(text, HasSubstr("'a' is checked out by alice since"));
  EXPECT_THAT(text, HasSubstr("for the new pump"));
  EXPECT_EQ(m_provider.remove({a}), SCC_E_FILEISCHECKEDOUT);
  EXPECT_EQ(m_provider.status(a), HeldByOther);
  EXPECT_EQ(m_sandbox.read("work/a"), "first\n");
}

TEST_F(SubversionProviderTest, NoticesALockThatWasTakenAway) {
  const std::string a = controlled("a");
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK);
  ASSERT_EQ(alice("svn lock -q --force a").code, 0);
  m_sandbox.write("work/a", "mine\n");
  EXPECT_EQ(m_provider.status(a), HeldByOther | SCC_STATUS_MODIFIED);
  EXPECT_LT(m_provider.checkIn({a}, "too late"), 0);
  EXPECT_EQ(m_sandbox.read("work/a"), "mine\n");
  EXPECT_EQ(inStore("a"), "first\n");
}

TEST_F(SubversionProviderTest, DoesWhatItCanWhenSomeOfManyFail) {
  const Names names = {controlled("a"), controlled("b"), controlled("c")};
  m_sandbox.write("work/d", "not controlled\n");
  ASSERT_EQ(alice("svn lock -q b").code, 0);
  EXPECT_EQ(m_provider.checkOut({names[0], names[1], file("d"), names[2], file("none")}),
            SCC_E_FILEOUTEXCLUSIVE);
  EXPECT_EQ(m_provider.query(names), (std::vector<LONG>{Held, HeldByOther, Held}));
}

TEST_F(SubversionProviderTest, BringsAnOldFileUpToDateBeforeItIsCheckedOut) {
  const std::string a = controlled("a");
  aliceCommits("a", "newer\\n");
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOFDATE);
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_sandbox.read("work/a"), "newer\n");
  EXPECT_EQ(m_provider.status(a), Held);
}

TEST_F(SubversionProviderTest, KeepsChangesApartFromANewerVersion) {
  const std::string a = controlled("a");
  aliceCommits("a", "newer\\n");
  fs::permissions(a, fs::perms::owner_all);
  m_sandbox.write("work/a", "changed without leave\n");
  EXPECT_EQ(m_provider.checkOut({a}), SCC_E_NONSPECIFICERROR);
  EXPECT_EQ(m_sandbox.read("work/a"), "changed without leave\n");
}

TEST_F(SubversionProviderTest, GetMakesFilesWhatTheStoreHas) {
  const Names names = {controlled("changed"), controlled("lost"), controlled("old"),
                       controlled("loose"),   controlled("held"), controlled("gone")};
  aliceCommits("old", "newer\\n");
  ASSERT_EQ(alice("echo new >new && svn add -q new && svn rm -q gone && svn ci -q -m x").code, 0);
  fs::permissions(file("changed"), fs::perms::owner_all);
  m_sandbox.write("work/changed", "spoilt\n");
  fs::remove(file("lost"));
  fs::permissions(file("loose"), fs::perms::owner_all);
  ASSERT_EQ(m_provider.checkOut({file("held")}), SCC_OK);
  m_sandbox.write("work/held", "being worked on\n");
  EXPECT_EQ(m_provider.status(file("gone")),
            SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOFDATE | SCC_STATUS_DELETED);

  EXPECT_EQ(m_provider.get({names[0], names[1], names[2], names[3], file("new")}), SCC_OK)
      << ProviderSession::takeTexts();
  EXPECT_EQ(m_sandbox.read("work/changed"), "first\n");
  EXPECT_EQ(m_sandbox.read("work/lost"), "first\n");
  EXPECT_EQ(m_sandbox.read("work/old"), "newer\n");
  EXPECT_EQ(m_sandbox.read("work/new"), "new\n");
  EXPECT_FALSE(m_sandbox.isWritable("work/changed"));
  EXPECT_FALSE(m_sandbox.isWritable("work/loose"));
  EXPECT_EQ(m_provider.get({file("held")}), SCC_E_FILEISCHECKEDOUT);
  EXPECT_EQ(m_sandbox.read("work/held"), "being worked on\n");
  fs::remove(file("held"));
  EXPECT_EQ(m_provider.get({file("held")}), SCC_OK);
  EXPECT_EQ(m_sandbox.read("work/held"), "first\n");
  EXPECT_EQ(m_provider.status(file("held")), Held);
  EXPECT_EQ(m_provider.get({file("gone")}), SCC_E_FILENOTCONTROLLED);
  EXPECT_EQ(m_provider.get({file("nothing")}), SCC_E_FILENOTCONTROLLED);
}

TEST_F(SubversionProviderTest, AFileThatIsSetAsideIsShownTheNewestVersionAndKeepsItsOwn) {
  const std::string a = controlled("a");
  aliceCommits("a", "hers\n");
  fs::rename(a, a + "_temp");
  ASSERT_EQ(m_provider.get({a}), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_sandbox.read("work/a"), "hers\n");
  fs::rename(a + "_temp", a);
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOFDATE)
      << "as if it were changed, its next check-in would take alice's work back";
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK);
  EXPECT_EQ(m_sandbox.read("work/a"), "hers\n");
}

TEST_F(SubversionProviderTest, WhatOnlyTheStoreHasIsKnownAndCanBeCheckedOut) {
  const Names both = {file("deep/new"), file("other")};
  ASSERT_EQ(alice("mkdir deep && echo 1 >deep/new && echo 2 >other && svn add -q deep other && "
                  "svn ci -q -m new")
                .code,
            0);
  constexpr LONG OnlyThere = SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOFDATE;
  EXPECT_EQ(m_provider.query({both[0], both[1], file("none")}),
            (std::vector<LONG>{OnlyThere, OnlyThere, SCC_STATUS_NOTCONTROLLED}));
  ASSERT_EQ(m_provider.checkOut(both), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.query(both), (std::vector<LONG>{Held, Held}));
  EXPECT_TRUE(m_sandbox.isWritable("work/deep/new"));
}

TEST_F(SubversionProviderTest, GetOfADirectoryBringsWhatIsNew) {
  controlled("p/a");
  ASSERT_EQ(alice("mkdir p/q && echo deep >p/q/b && echo new >p/c && svn add -q p/q p/c && "
                  "svn ci -q -m more")
                .code,
            0);
  EXPECT_EQ(m_provider.get({m_sandbox.path("work")}, SCC_GET_ALL | SCC_GET_RECURSIVE), SCC_OK);
  EXPECT_EQ(m_sandbox.read("work/p/q/b"), "deep\n");
  EXPECT_EQ(m_sandbox.read("work/p/c"), "new\n");
}

TEST_F(SubversionProviderTest, AddTakesTheDirectoriesAlongAndNothingElse) {
  m_sandbox.write("work/p/q/a", "a\n");
  m_sandbox.write("work/p/q/b", "b\n");
  ASSERT_EQ(m_provider.add({file("p/q/a")}, SCC_KEEP_CHECKEDOUT), SCC_OK);
  EXPECT_EQ(m_provider.query({file("p/q/a"), file("p/q/b")}), (std::vector<LONG>{Held, 0}));
  EXPECT_EQ(m_provider.add({file("none")}), SCC_E_FILENOTEXIST);
  fs::create_directory(file("empty"));
  EXPECT_EQ(m_provider.add({file("empty")}), SCC_OK);
  EXPECT_EQ(m_sandbox.run({"svn", "ls", m_provider.url()}).out, "empty/\np/\n");
}

TEST_F(SubversionProviderTest, FailedAddLeavesNothingScheduled) {
  controlled("a");
  ASSERT_EQ(alice("mkdir p && svn add -q p && svn ci -q -m first").code, 0);
  m_sandbox.write("work/p/x", "x\n");
  EXPECT_LT(m_provider.add({file("p/x")}), 0);
  EXPECT_EQ(m_sandbox.run({"svn", "status", m_sandbox.path("work")}).out,
            "?       " + file("p") + "\n");
  EXPECT_EQ(m_sandbox.read("work/p/x"), "x\n");
}

TEST_F(SubversionProviderTest, RemoveLeavesTheLocalFile) {
  const std::string a = controlled("a");
  ASSERT_EQ(m_provider.checkOut({a}), SCC_OK);
  m_sandbox.write("work/a", "changed\n");
  ASSERT_EQ(m_provider.remove({a}), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_sandbox.read("work/a"), "changed\n");
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_NOTCONTROLLED);
  EXPECT_EQ(m_sandbox.run({"svn", "ls", m_provider.url()}).out, "");
  EXPECT_EQ(m_provider.remove({a}), SCC_E_FILENOTCONTROLLED);
}

/// Whether the program renames before or after the call, and whether the file has changes.
struct RenameCase {
  bool before;
  bool changed;
};

class SubversionRenameTest : public SubversionProviderTest,
                             public testing::WithParamInterface<RenameCase> {};

TEST_P(SubversionRenameTest, HistoryFollowsAndTheDiskIsTheProgramsOwn) {
  const auto [before, changed] = GetParam();
  const std::string from = controlled("a");
  const std::string to = file("sub/b");
  fs::create_directory(file("sub"));
  if (changed) {
    ASSERT_EQ(m_provider.checkOut({from}), SCC_OK);
    m_sandbox.write("work/a", "changed\n");
  }
  if (before) fs::rename(from, to);
  ASSERT_EQ(m_provider.rename(from, to), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(fs::exists(from), !before);
  EXPECT_EQ(fs::exists(to), before);
  if (!before) fs::rename(from, to);

  EXPECT_EQ(m_sandbox.read("work/sub/b"), changed ? "changed\n" : "first\n");
  EXPECT_EQ(m_provider.status(to),
            changed ? Held | SCC_STATUS_MODIFIED : LONG{SCC_STATUS_CONTROLLED});
  EXPECT_EQ(m_provider.status(from), SCC_STATUS_NOTCONTROLLED);
  EXPECT_EQ(inStore("sub/b"), "first\n");
  EXPECT_THAT(m_sandbox.run({"svn", "log", "-q", m_provider.url() + "/sub/b"}).out,
              HasSubstr("r2 |"));
}

INSTANTIATE_TEST_SUITE_P(Orders, SubversionRenameTest,
                         testing::Values(RenameCase{false, false}, RenameCase{true, false},
                                         RenameCase{false, true}, RenameCase{true, true}));

TEST_F(SubversionProviderTest, RefusedRenameLeavesEverythingAsItWas) {
  const std::string a = controlled("a");
  const std::string b = controlled("b");
  fs::permissions(a, fs::perms::owner_all);
  m_sandbox.write("work/a", "changed\n");
  EXPECT_EQ(m_provider.rename(a, b), SCC_E_OPNOTPERFORMED);
  ASSERT_EQ(alice("svn lock -q a").code, 0);
  EXPECT_LT(m_provider.rename(a, file("new/c")), 0);
  EXPECT_EQ(m_sandbox.read("work/a"), "changed\n");
  EXPECT_EQ(m_provider.status(a), HeldByOther | SCC_STATUS_MODIFIED);
  EXPECT_FALSE(fs::exists(file("new/c")));
  EXPECT_THAT(m_sandbox.run({"svn", "status", "-q", m_sandbox.path("work")}).out,
              testing::StartsWith("M "));
}

TEST_F(SubversionProviderTest, DirectoryIsRenamedAsAWhole) {
  controlled("p/a");
  controlled("p/q/b");
  ASSERT_EQ(m_provider.rename(file("p"), file("r")), SCC_OK) << ProviderSession::takeTexts();
  ASSERT_TRUE(fs::exists(file("p/q/b")));
  fs::rename(file("p"), file("r"));
  EXPECT_EQ(m_provider.query({file("r/a"), file("r/q/b")}), (std::vector<LONG>{1, 1}));
  EXPECT_EQ(inStore("r/q/b"), "first\n");
}

TEST_F(SubversionProviderTest, WhatIsCheckedOutInARenamedDirectoryStaysSo) {
  const Names names = {controlled("p/held"), controlled("p/q/changed")};
  controlled("p/other");
  ASSERT_EQ(m_provider.checkOut(names), SCC_OK);
  m_sandbox.write("work/p/q/changed", "second\n");
  aliceCommits("p/other", "newer\\n");
  ASSERT_EQ(m_provider.rename(file("p"), file("r")), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_sandbox.read("work/p/q/changed"), "second\n");
  fs::rename(file("p"), file("r"));
  EXPECT_EQ(m_provider.query({file("r/held"), file("r/q/changed")}),
            (std::vector<LONG>{Held, Held | SCC_STATUS_MODIFIED}));
  EXPECT_EQ(inStore("r/q/changed"), "first\n");
  EXPECT_EQ(m_sandbox.read("work/r/other"), "newer\n");

  // Without the lock the changes know nothing of what may have come meanwhile.
  ASSERT_EQ(alice("svn unlock -q --force r/q/changed").code, 0);
  EXPECT_EQ(m_provider.rename(file("r"), file("s")), SCC_E_OPNOTPERFORMED);
  EXPECT_EQ(m_sandbox.read("work/r/q/changed"), "second\n");
  EXPECT_EQ(inStore("s/q/changed"), "");
}

TEST_F(SubversionProviderTest, CarriesHostileNames) {
  const Names hostile = {"a b",  "a@b",    "a@",  "-rf", "100%", "#1",  "\xC3\xA4\xC3\xB6",
                         "$Id$", "a'b\"c", "(x)", "[y]", "a;b",  "a>b", "%41"};
  Names names;
  for (const std::string& name : hostile) names.push_back(controlled("dir " + name + "/" + name));
  ASSERT_EQ(m_provider.checkOut(names), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.query(names), std::vector<LONG>(names.size(), Held));
  for (const std::string& name : hostile)
    m_sandbox.write("work/dir " + name + "/" + name, "changed\n");
  ASSERT_EQ(m_provider.checkIn(names, "hostile"), SCC_OK) << ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.query(names), std::vector<LONG>(names.size(), SCC_STATUS_CONTROLLED));
}

BOOL SCC_CALL collect(LPVOID list, BOOL isKept, LONG, LPSTR name) {
  static_cast<Names*>(list)->push_back((isKept ? "+" : "-") +
                                       std::string(name).substr(std::string(name).rfind('/') + 1));
  return 1;
}

TEST_F(SubversionProviderTest, ListsWhatFitsTheCommand) {
  const Names names = {controlled("free"), controlled("held"), controlled("other")};
  m_sandbox.write("work/fresh", "x\n");
  ASSERT_EQ(m_provider.checkOut({names[1]}), SCC_OK);
  ASSERT_EQ(
      alice("svn lock -q other && echo x >store && svn add -q store && svn ci -q -m s store").code,
      0);
  const auto list = m_provider.entry<SccPopulateListFn>("SccPopulateList");
  const struct {
    SCCCOMMAND command;
    Names listed;
    Names expected;
  } cases[] = {
      {SCC_COMMAND_GET, {}, {"+free", "+held", "+other", "+store"}},
      {SCC_COMMAND_CHECKOUT, {names[2]}, {"-other", "+free", "+store"}},
      {SCC_COMMAND_CHECKIN, {names[0]}, {"-free", "+held"}},
      {SCC_COMMAND_ADD, {file("fresh"), names[0]}, {"+fresh", "-free"}},
      {SCC_COMMAND_HISTORY, {}, {"+free", "+held", "+other", "+store"}},
  };
  for (const auto& [command, listed, expected] : cases) {
    Names found;
    std::vector<LONG> status(listed.size());
    EXPECT_EQ(list(m_provider.context(), command, static_cast<LONG>(listed.size()),
                   pointersTo(listed).data(), collect, &found, status.data(), 0),
              SCC_OK);
    EXPECT_EQ(found, expected) << command;
  }
}

TEST_F(SubversionProviderTest, ShowsHistoryPropertiesAndDifferences) {
  const std::string a = controlled("a");
  ASSERT_EQ(m_provider.checkOut({a}, "why"), SCC_OK);
  ProviderSession::takeTexts();
  LPCSTR name = a.c_str();
  LPVOID const context = m_provider.context();
  EXPECT_EQ(m_provider.entry<SccHistoryFn>("SccHistory")(context, nullptr, 1, &name, 0, nullptr),
            SCC_OK);
  EXPECT_THAT(ProviderSession::takeTexts(), testing::ContainsRegex("r2  bob  .*\nadded"));
  EXPECT_EQ(m_provider.entry<SccPropertiesFn>("SccProperties")(context, nullptr, name), SCC_OK);
  const std::string properties = ProviderSession::takeTexts();
  EXPECT_THAT(properties, HasSubstr("'a' is checked out by bob since"));
  EXPECT_THAT(properties, HasSubstr("svn:needs-lock = *"));

  const auto diff = m_provider.entry<SccDiffFn>("SccDiff");
  EXPECT_EQ(diff(context, nullptr, name, 0, nullptr), SCC_OK);
  EXPECT_EQ(diff(context, nullptr, name, SCC_DIFF_QD_TIME, nullptr), SCC_OK);
  m_sandbox.write("work/a", "  first\n");
  EXPECT_EQ(diff(context, nullptr, name, SCC_DIFF_QD_CONTENTS, nullptr), SCC_I_FILEDIFFERS);
  EXPECT_EQ(diff(context, nullptr, name, SCC_DIFF_IGNORESPACE, nullptr), SCC_OK);
  EXPECT_EQ(diff(context, nullptr, name, 0, nullptr), SCC_I_FILEDIFFERS);
  EXPECT_THAT(ProviderSession::takeTexts(), HasSubstr("-first\n+  first"));
}

TEST_F(SubversionProviderTest, KnowsDirectories) {
  controlled("p/a");
  fs::create_directory(file("new"));
  ASSERT_EQ(alice("svn mkdir -q empty && svn ci -q -m e").code, 0);
  const Names names = {file("p"), file("new"), file("empty")};
  LPVOID const context = m_provider.context();
  const auto diff = m_provider.entry<SccDirDiffFn>("SccDirDiff");
  EXPECT_EQ(diff(context, nullptr, file("p").c_str(), SCC_DIFF_QD_CONTENTS, nullptr), SCC_OK);
  EXPECT_EQ(diff(context, nullptr, m_sandbox.path("work").c_str(), 0, nullptr), SCC_I_FILEDIFFERS);
  EXPECT_THAT(ProviderSession::takeTexts(), HasSubstr("only in the store: " + file("empty")));

  ASSERT_EQ(m_provider.get({m_sandbox.path("work")}, SCC_GET_ALL | SCC_GET_RECURSIVE), SCC_OK);
  LONG status[3] = {};
  EXPECT_EQ(m_provider.entry<SccDirQueryInfoFn>("SccDirQueryInfo")(
                context, 3, pointersTo(names).data(), status),
            SCC_OK);
  EXPECT_THAT(status, testing::ElementsAre(SCC_DIRSTATUS_CONTROLLED, SCC_DIRSTATUS_NOTCONTROLLED,
                                           SCC_DIRSTATUS_EMPTYPROJ));
}

TEST_F(SubversionProviderTest, WritesTheStoresVersionBesideAndForgetsNothing) {
  const std::string a = controlled("a", "$Id$\n");
  aliceCommits("a", "newer\\n");
  const Ended added = alice("mkdir d && echo new >d/b && svn add -q d && svn ci -q -m new");
  ASSERT_EQ(added.code, 0) << added.err;
  const auto getTo = [this](const std::string& name, const std::string& target) {
    return m_provider.entry<SccGetToFn>("SccGetTo")(m_provider.context(), nullptr,
                                                    file(name).c_str(), target.c_str());
  };
  const std::string target = m_sandbox.path("side");
  m_sandbox.write("side", "of another comparison");
  EXPECT_EQ(getTo("a", target), SCC_OK);
  EXPECT_EQ(m_sandbox.read("side"), "newer\n");
  EXPECT_EQ(m_provider.status(a), SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOFDATE);
  EXPECT_THAT(m_sandbox.read("work/a"), HasSubstr("$Id: a"));
  EXPECT_EQ(getTo("d/b", target), SCC_OK);
  EXPECT_EQ(m_sandbox.read("side"), "new\n");
  EXPECT_FALSE(fs::exists(file("d")));
  EXPECT_EQ(getTo("nowhere", target), SCC_E_FILENOTCONTROLLED);
  EXPECT_EQ(m_sandbox.read("side"), "new\n");
}

TEST_F(SubversionProviderTest, ListsDirectoriesAndWhatDiffers) {
  controlled("p/a");
  controlled("b");
  ASSERT_EQ(m_provider.checkOut({file("b")}), SCC_OK);
  m_sandbox.write("work/b", "changed");
  const Names names = {file("p/a"), file("b")};
  LONG different[2] = {7, 7};
  EXPECT_EQ(m_provider.entry<SccEnumChangedFilesFn>("SccEnumChangedFiles")(
                m_provider.context(), nullptr, 2, pointersTo(names).data(), different),
            SCC_OK);
  EXPECT_THAT(different, testing::ElementsAre(0, 1));

  static std::string seen;
  const POPDIRLISTFUNC collect = [](LPVOID, BOOL isFolder, LPCSTR name) -> BOOL {
    seen += fs::path(name).filename().string() + (isFolder != 0 ? "/ " : " ");
    return SCC_OK;
  };
  const auto list = [&](LONG flags) {
    seen.clear();
    const std::string top = m_sandbox.path("work");
    LPCSTR directory = top.c_str();
    EXPECT_EQ(m_provider.entry<SccPopulateDirListFn>("SccPopulateDirList")(
                  m_provider.context(), 1, &directory, collect, nullptr, flags),
              SCC_OK);
    return seen;
  };
  EXPECT_EQ(list(SCC_PDL_ONELEVEL), "p/ ");
  EXPECT_EQ(list(SCC_PDL_RECURSIVE | SCC_PDL_INCLUDEFILES), "b p/ a ");
}

TEST_F(SubversionProviderTest, MakesProjectsInProjects) {
  const auto create = m_provider.entry<SccCreateSubProjectFn>("SccCreateSubProject");
  const auto parentOf = m_provider.entry<SccGetParentProjectPathFn>("SccGetParentProjectPath");
  char aux[SCC_PRJPATH_SIZE] = {};
  char made[SCC_PRJPATH_SIZE] = {};
  LPVOID const context = m_provider.context();
  const std::string url = m_provider.url();
  EXPECT_EQ(create(context, nullptr, nullptr, url.c_str(), "a part", aux, made), SCC_OK);
  EXPECT_EQ(made, url + "/a%20part");
  EXPECT_EQ(m_provider.open(made, m_sandbox.path("part")), SCC_E_PROJECTALREADYOPEN);
  ASSERT_EQ(m_provider.close(), SCC_OK);
  EXPECT_EQ(m_provider.open(made, m_sandbox.path("part")), SCC_OK);
  char parent[SCC_PRJPATH_SIZE] = {};
  EXPECT_EQ(parentOf(context, nullptr, nullptr, made, aux, parent), SCC_OK);
  EXPECT_EQ(parent, url);
  EXPECT_EQ(parentOf(context, nullptr, nullptr, std::string(aux).c_str(), aux, parent), SCC_OK);
  EXPECT_STREQ(parent, aux) << "the root is its own parent";
  for (const char* name : {"", ".", "..", "a/b"}) {
    EXPECT_EQ(create(context, nullptr, nullptr, url.c_str(), name, aux, made), SCC_E_PROJSYNTAXERR)
        << name;
  }
  EXPECT_EQ(create(context, nullptr, nullptr, "no url", "a", aux, made), SCC_E_PROJSYNTAXERR);
}

TEST_F(SubversionProviderTest, OpensSeveralProjectsAtOnceFromSeveralThreads) {
  const auto work = [this](const std::string& folder) {
    ProviderSession own;
    fs::create_directory(m_sandbox.path(folder));
    EXPECT_EQ(own.connect(m_sandbox.path(folder), folder), SCC_OK);
    const std::string a = m_sandbox.path(folder + "/a");
    m_sandbox.write(folder + "/a", folder);
    EXPECT_EQ(own.add({a}), SCC_OK);
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(own.checkOut({a}), SCC_OK);
      m_sandbox.write(folder + "/a", folder + std::to_string(i));
      EXPECT_EQ(own.checkIn({a}, "again"), SCC_OK);
    }
    EXPECT_EQ(own.status(a), SCC_STATUS_CONTROLLED);
  };
  std::thread first(work, "one");
  std::thread second(work, "two");
  first.join();
  second.join();
}

TEST_F(SubversionProviderTest, FolderOfAnotherRepositoryIsRefused) {
  ProviderSession other;
  fs::create_directory(m_sandbox.path("second"));
  ASSERT_EQ(other.connect(m_sandbox.path("second")), SCC_OK);
  ASSERT_EQ(other.close(), SCC_OK);
  EXPECT_EQ(other.open(m_provider.url(), m_sandbox.path("second")), SCC_E_INVALIDFILEPATH);
}

}  // namespace
}  // namespace veldra::live
