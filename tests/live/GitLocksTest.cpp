// Git with a server that offers LFS locks: two users keep each other out, and a lock goes where its
// file goes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/live/Job.h"
#include "tests/live/Server.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

using Locks = std::map<std::string, std::string>;  ///< Holders by the files.

constexpr char LockedUnit[] = "Brewing/Grinder.vcmp";
constexpr char OtherUnit[] = "Milk/Milk.vpkg";

class GitLocksTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const std::string program : {"git", "git-lfs", "python3"}) {
      if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    }
    m_job.tool().makeArchive();
    const int port = freePort();
    m_server.emplace(m_job.sandbox(),
                     std::vector<std::string>{"python3", VELDRA_SERVERS "/git_with_locks.py",
                                              std::to_string(port), m_job.sandbox().path()},
                     port);
    ASSERT_TRUE(m_server->isListening());
    // Who the user is stands in the address; the server takes any password.
    m_job.sandbox().write("home/.gitconfig",
                          "[credential]\n\thelper = \"!f() { echo password=any; }; f\"\n");
    const std::string place = "@127.0.0.1:" + std::to_string(port) + "/archive";
    m_job.makeProject("http://alice" + place);
    ASSERT_FALSE(HasFailure());
    m_job.cm({"add", "--all", "-m", "all"});
    // Bob's folder is a clone that the program has never connected.
    m_job.become("bob", "second");
    m_job.tool().checkOut("http://bob" + place, "second");
  }

  /// What the server holds.
  Locks locks() {
    Locks found;
    for (const std::string& line :
         pieces(m_job.sandbox().shell("cd model && git lfs locks").out, '\n')) {
      const std::string path = line.substr(0, line.find('\t'));
      const std::string holder = between(line, "\t", "\t");
      found[path.substr(0, path.find_last_not_of(' ') + 1)] = holder.substr(0, holder.find(' '));
    }
    return found;
  }

  Job m_job{"Git"};
  std::optional<Server> m_server;
};

TEST_F(GitLocksTest, WhatSomebodyHoldsIsRefusedToOthersByName) {
  m_job.become("alice", "model");
  m_job.cm({"checkout", LockedUnit});
  m_job.cm({"checkout", LockedUnit});
  EXPECT_THAT(locks(), UnorderedElementsAre(Pair(LockedUnit, "alice")));

  m_job.become("bob", "second");
  const std::string archived = m_job.tool().newestText(LockedUnit);
  const Ended some = m_job.tryCm({"checkout", LockedUnit, OtherUnit});
  EXPECT_EQ(some.code, 1);
  EXPECT_THAT(some.err, HasSubstr("'alice'"));
  EXPECT_THAT(locks(), UnorderedElementsAre(Pair(LockedUnit, "alice"), Pair(OtherUnit, "bob")));
  const auto expectRefusal = [this](const std::vector<std::string>& command) {
    const Ended refused = m_job.tryCm(command);
    EXPECT_EQ(refused.code, 3) << command.front();
    EXPECT_THAT(refused.err, HasSubstr("alice")) << command.front();
  };
  expectRefusal({"lock", LockedUnit});
  expectRefusal({"move", LockedUnit, "Milk"});
  expectRefusal({"delete", "-r", "Brewing"});
  m_job.sandbox().shell("chmod u+w second/" + std::string(LockedUnit));
  m_job.change(LockedUnit, "\"5\"", "\"6\"");
  expectRefusal({"checkin", LockedUnit, "-m", "mine"});
  EXPECT_EQ(m_job.tool().newestText(LockedUnit), archived);
  m_job.cm({"undo", LockedUnit, OtherUnit});
  EXPECT_THAT(locks(), UnorderedElementsAre(Pair(LockedUnit, "alice")));
  EXPECT_EQ(Job::unitOf(m_job.document({"ls"}), LockedUnit)["locker"], "alice");
  m_job.cm({"connect"});
}

TEST_F(GitLocksTest, LocksGoWhereTheirFilesGo) {
  m_job.become("alice", "model");
  m_job.cm({"checkout", LockedUnit, OtherUnit});
  m_job.cm({"rename", LockedUnit, "Mill & Co", "-m", "a better name"});
  EXPECT_THAT(locks(), UnorderedElementsAre(Pair(OtherUnit, "alice")));
  m_job.cm({"checkout", "Brewing/Mill & Co.vcmp", "Brewing/Drip Tray.vcmp"});
  m_job.cm({"move", "Brewing", "Product", "-m", "a whole package"});
  EXPECT_THAT(locks(), UnorderedElementsAre(Pair("Product/Brewing/Mill & Co.vcmp", "alice"),
                                            Pair("Product/Brewing/Drip Tray.vcmp", "alice"),
                                            Pair(OtherUnit, "alice")));
  m_job.change("Product/Brewing/Mill & Co.vcmp", "\"5\"", "\"6\"");
  m_job.cm({"checkin", "Product/Brewing/Mill & Co.vcmp", "-m", "finer"});
  m_job.cm({"undo", "Product/Brewing/Drip Tray.vcmp"});
  m_job.cm({"delete", "-r", "Milk", "-m", "no milk"});
  EXPECT_THAT(locks(), IsEmpty());
}

}  // namespace
}  // namespace veldra::live
