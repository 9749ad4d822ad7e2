#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include "tests/live/ProviderSession.h"
#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using namespace scc;
using testing::HasSubstr;

/// A server of Subversion's own protocol that lets the users bob and alice in, and nobody else.
class SubversionServerTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("svnserve")) GTEST_SKIP() << "svnserve is not installed";
    setenv("HOME", m_sandbox.path("home").c_str(), 1);
    const Ended made = m_sandbox.shell(
        "svnadmin create repo && svn mkdir -q -m r1 file://$PWD/repo/trunk\n"
        "printf '[general]\\nanon-access = none\\nauth-access = write\\npassword-db = passwd\\n"
        "realm = models\\n' >repo/conf/svnserve.conf\n"
        "printf '[users]\\nbob = one\\nalice = two\\n' >repo/conf/passwd\n");
    ASSERT_EQ(made.code, 0) << made.err;
    for (int attempt = 0; attempt < 20 && m_port.empty(); ++attempt) start(20000 + attempt * 37);
    ASSERT_FALSE(m_port.empty()) << "no free port";
  }

  void TearDown() override { stop(); }

  void start(int port) {
    m_port =
        std::to_string(port + static_cast<int>(std::hash<std::string>()(m_sandbox.path()) % 20000));
    const Ended started = m_sandbox.shell(
        "svnserve -d -r $PWD/repo --listen-host 127.0.0.1 "
        "--listen-port " +
        m_port + " --pid-file pid");
    if (started.code != 0) m_port.clear();
  }

  void stop() const { m_sandbox.shell("[ ! -f pid ] || kill $(cat pid); rm -f pid"); }

  std::string url() const { return "svn://127.0.0.1:" + m_port + "/trunk"; }

  /// What svn keeps after a login for which it was told to.
  void keepPassword(const std::string& user, const std::string& password,
                    const std::string& home = "home") const {
    const std::string realm = "<svn://127.0.0.1:" + m_port + "> models";
    const auto entry = [](const std::string& name, const std::string& value) {
      return "K " + std::to_string(name.size()) + "\n" + name + "\nV " +
             std::to_string(value.size()) + "\n" + value + "\n";
    };
    m_sandbox.write("credentials", entry("passtype", "simple") + entry("password", password) +
                                       entry("svn:realmstring", realm) + entry("username", user) +
                                       "END\n");
    const Ended kept = m_sandbox.shell(
        "folder=" + home + "/.subversion/auth/svn.simple; mkdir -p $folder && mv credentials " +
        "$folder/$(printf '%s' '" + realm + "' | md5sum | cut -c1-32)");
    ASSERT_EQ(kept.code, 0) << kept.err;
  }

  Ended alice(const std::string& script) const {
    return m_sandbox.shell(
        "svn() { command svn --username alice --password two "
        "--no-auth-cache --non-interactive \"$@\"; }\n" +
        script);
  }

  Sandbox m_sandbox;
  ProviderSession m_provider;
  std::string m_port;
};

TEST_F(SubversionServerTest, AsksNobodyForAPassword) {
  EXPECT_EQ(m_provider.open(url(), m_sandbox.path("work")), SCC_E_NOTAUTHORIZED);
  keepPassword("bob", "wrong");
  EXPECT_EQ(m_provider.open(url(), m_sandbox.path("work")), SCC_E_NOTAUTHORIZED);
}

TEST_F(SubversionServerTest, TwoUsersMeet) {
  keepPassword("bob", "one");
  ASSERT_EQ(m_provider.open(url(), m_sandbox.path("work")), SCC_OK) << m_provider.takeTexts();
  const Names names = {m_sandbox.path("work/a"), m_sandbox.path("work/b")};
  for (const char* name : {"work/a", "work/b"}) m_sandbox.write(name, "first\n");
  ASSERT_EQ(m_provider.add(names), SCC_OK) << m_provider.takeTexts();
  ASSERT_EQ(alice("svn co -q " + url() + " hers && svn lock -q hers/b").code, 0);
  ProviderSession::takeTexts();
  EXPECT_EQ(m_provider.checkOut(names), SCC_E_FILEOUTEXCLUSIVE);
  EXPECT_THAT(ProviderSession::takeTexts(), HasSubstr("'b' is checked out by alice"));
  EXPECT_TRUE(m_provider.status(names[0]) & SCC_STATUS_CHECKEDOUT);
  EXPECT_TRUE(m_provider.status(names[1]) & SCC_STATUS_OUTOTHER);
  EXPECT_NE(alice("svn lock -q hers/a").code, 0);

  // In a second folder of his own bob is known as the holder, by the name that the store keeps.
  ProviderSession elsewhere;
  ASSERT_EQ(elsewhere.open(url(), m_sandbox.path("elsewhere")), SCC_OK);
  const LONG there = elsewhere.status(m_sandbox.path("elsewhere/a"));
  EXPECT_TRUE(there & SCC_STATUS_OUTBYUSER);
  EXPECT_FALSE(there & (SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTOTHER));

  m_sandbox.write("work/a", "second\n");
  EXPECT_EQ(m_provider.checkIn({names[0]}, "over the wire"), SCC_OK);
  EXPECT_EQ(alice("svn cat " + url() + "/a").out, "second\n");
}

TEST_F(SubversionServerTest, TwoUsersWorkOnOneModel) {
  keepPassword("bob", "one", "home-bob");
  keepPassword("alice", "two", "home-alice");
  m_sandbox.set("VELDRA_MACHINE_REGISTRY", m_sandbox.path("machine.toml"));
  m_sandbox.set("VELDRA_USER_REGISTRY", m_sandbox.path("user.toml"));
  const auto cm = [this](const std::string& user, std::vector<std::string> arguments) {
    m_sandbox.set("HOME", m_sandbox.path("home-" + user));
    arguments.insert(arguments.begin(), {"-p", m_sandbox.path(user)});
    return m_sandbox.cm(arguments);
  };
  const std::string unit = "Brewing/Grinder.vcmp";
  const auto change = [&](const std::string& user) {
    m_sandbox.write(user + "/" + unit, m_sandbox.read(user + "/" + unit) + "\n");
  };
  m_sandbox.copySample("bob");
  ASSERT_EQ(m_sandbox.cm({"init", m_sandbox.path("bob"), "--name", "Sample"}).code, 0);
  ASSERT_EQ(cm("bob", {"provider", "install", VELDRA_SUBVERSION_PROVIDER}).code, 0);
  ASSERT_EQ(cm("bob", {"provider", "use", "veldra subversion"}).code, 0);
  const Ended connected = cm("bob", {"connect", "--archive", url()});
  ASSERT_EQ(connected.code, 0) << connected.err;
  const Ended added = cm("bob", {"add", "--all", "-m", "all"});
  ASSERT_EQ(added.code, 0) << added.err;
  ASSERT_EQ(alice("svn co -q " + url() + " alice").code, 0);

  ASSERT_EQ(cm("bob", {"checkout", unit}).code, 0);
  const Ended refused = cm("alice", {"checkout", unit});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("is checked out by bob"));
  EXPECT_THAT(cm("alice", {"status"}).out, HasSubstr("checked out by another user"));
  change("bob");
  ASSERT_EQ(cm("bob", {"checkin", unit, "-m", "his"}).code, 0);

  // What she checks out is his version, whatever she had.
  const Ended taken = cm("alice", {"checkout", unit});
  ASSERT_EQ(taken.code, 0) << taken.err;
  EXPECT_EQ(m_sandbox.read("alice/" + unit), m_sandbox.read("bob/" + unit));
  change("alice");
  ASSERT_EQ(cm("alice", {"checkin", unit, "-m", "hers"}).code, 0);
  ASSERT_EQ(cm("bob", {"fetch", unit}).code, 0);
  EXPECT_EQ(m_sandbox.read("bob/" + unit), m_sandbox.read("alice/" + unit));
  const std::string log = alice("svn log -q " + url() + "/" + unit).out;
  EXPECT_LT(log.find("alice"), log.find("bob")) << log;
}

TEST_F(SubversionServerTest, ServerThatIsGoneIsAnErrorAndNoMore) {
  keepPassword("bob", "one");
  ASSERT_EQ(m_provider.open(url(), m_sandbox.path("work")), SCC_OK);
  const std::string a = m_sandbox.path("work/a");
  m_sandbox.write("work/a", "first\n");
  ASSERT_EQ(m_provider.add({a}), SCC_OK);
  stop();
  EXPECT_EQ(m_provider.query({a}), std::vector<LONG>{SCC_E_ACCESSFAILURE});
  EXPECT_EQ(m_provider.checkOut({a}), SCC_E_ACCESSFAILURE);
  m_sandbox.write("work/b", "b\n");
  EXPECT_EQ(m_provider.add({m_sandbox.path("work/b")}), SCC_E_ACCESSFAILURE);
  EXPECT_EQ(m_sandbox.run({"svn", "status", m_sandbox.path("work")}).out,
            "?       " + m_sandbox.path("work/b") + "\n");
}

}  // namespace
}  // namespace veldra::live
