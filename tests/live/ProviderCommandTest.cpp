#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

/// veldra-cm over a provider that it finds in a registry of the sandbox's.
class ProviderCommandTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("svn")) GTEST_SKIP() << "svn is not installed";
    m_sandbox.set("VELDRA_MACHINE_REGISTRY", m_sandbox.path("machine.toml"));
    m_sandbox.set("VELDRA_USER_REGISTRY", m_sandbox.path("user.toml"));
  }

  Ended in(const std::string& folder, std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"-p", m_sandbox.path(folder)});
    return m_sandbox.cm(arguments);
  }

  void connectSample() {
    m_sandbox.copySample("model");
    ASSERT_EQ(m_sandbox.cm({"init", m_sandbox.path("model"), "--name", "Sample"}).code, 0);
    ASSERT_EQ(m_sandbox.cm({"provider", "install", VELDRA_SUBVERSION_PROVIDER}).code, 0);
    ASSERT_EQ(in("model", {"provider", "use", "veldra subversion"}).code, 0);
    const Ended connected = in("model", {"connect", "--archive", m_sandbox.path("archive")});
    ASSERT_EQ(connected.code, 0) << connected.err;
  }

  Sandbox m_sandbox;
};

TEST_F(ProviderCommandTest, InstallsWhatIsAProviderAndNothingElse) {
  const Ended installed =
      m_sandbox.cm({"provider", "install", "--machine", VELDRA_SUBVERSION_PROVIDER});
  EXPECT_EQ(installed.out, "installed  Veldra Subversion\n");
  EXPECT_THAT(m_sandbox.read("machine.toml"), HasSubstr("SCCServerPath"));
  EXPECT_THAT(m_sandbox.cm({"provider", "list"}).out, HasSubstr("* Veldra Subversion"));

  const struct {
    std::vector<std::string> arguments;
    int code;
    const char* words;
  } refused[] = {
      {{"install", m_sandbox.path("none.so")}, 3, "none.so"},
      {{"install", VELDRA_CM_PROGRAM}, 3, "veldra-cm"},
      {{"use", "other"}, 3, "\"veldra-cm provider list\""},
      {{"use"}, 2, "provider use"},
      {{"list", "extra"}, 2, "provider list"},
  };
  for (const auto& [arguments, code, words] : refused) {
    std::vector<std::string> command = {"provider"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const Ended ended = m_sandbox.cm(command);
    EXPECT_EQ(ended.code, code) << arguments.front();
    EXPECT_THAT(ended.err, HasSubstr(words));
  }
  m_sandbox.write("user.toml", "[broken\n");
  const Ended ended = m_sandbox.cm({"provider", "install", VELDRA_SUBVERSION_PROVIDER});
  EXPECT_EQ(ended.code, 3);
  EXPECT_EQ(m_sandbox.read("user.toml"), "[broken\n");
}

TEST_F(ProviderCommandTest, CarriesACommentAndNamesTheHolder) {
  connectSample();
  const std::string unit = "Brewing/Grinder.vcmp";
  ASSERT_EQ(in("model", {"add", "--all", "-m", "all"}).code, 0);
  ASSERT_EQ(in("model", {"checkout", unit}).code, 0);
  m_sandbox.write("model/" + unit, m_sandbox.read("model/" + unit) + "\n");
  const std::string comment = "a \"quoted\" > 'comment' $unit\nin two lines";
  const Ended checkedIn = in("model", {"checkin", unit, "-m", comment});
  ASSERT_EQ(checkedIn.code, 0) << checkedIn.err;
  EXPECT_THAT(m_sandbox.run({"svn", "log", "-l1", "file://" + m_sandbox.path("archive")}).out,
              HasSubstr(comment));

  const Ended locked = m_sandbox.shell(
      "svn co -q file://$PWD/archive other --username alice --no-auth-cache &&\n"
      "svn lock --username alice --no-auth-cache other/Brewing/Grinder.vcmp");
  ASSERT_EQ(locked.code, 0) << locked.err;
  EXPECT_EQ(in("model", {"checkout", unit}).code, 3);
  const auto status = nlohmann::json::parse(in("model", {"status", "-u", "--json"}).out);
  for (const auto& record : status["units"]) {
    EXPECT_EQ(record["locker"], record["path"] == unit ? "alice" : "") << record["path"];
  }
}

}  // namespace
}  // namespace veldra::live
