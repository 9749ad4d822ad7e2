#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include "tests/live/Credentials.h"
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

  void keepPassword(const std::string& user, const std::string& password) const {
    keepCredentials(m_sandbox, "home", "<svn://127.0.0.1:" + m_port + "> models", user, password);
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
