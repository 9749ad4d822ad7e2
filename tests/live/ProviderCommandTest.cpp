#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// veldra-cm over a provider that it finds in a registry of the sandbox's. What it does with units
/// day by day is part of the scenario that all tools go through.
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

  /// Makes a project of the folder "model".
  void makeProject() {
    ASSERT_EQ(m_sandbox.cm({"init", m_sandbox.path("model"), "--name", "Sample"}).code, 0);
    ASSERT_EQ(m_sandbox.cm({"provider", "install", VELDRA_SUBVERSION_PROVIDER}).code, 0);
    ASSERT_EQ(in("model", {"provider", "use", "veldra subversion"}).code, 0);
  }

  void connectSample() {
    m_sandbox.copySample("model");
    makeProject();
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
  m_sandbox.set("VELDRA_PROVIDER_FAULT", "crash");
  const Ended crashed = m_sandbox.cm({"provider", "install", VELDRA_MISBEHAVING_PROVIDER});
  EXPECT_EQ(crashed.code, 3) << "the provider's crash is not the program's";
  EXPECT_THAT(crashed.err, HasSubstr(VELDRA_MISBEHAVING_PROVIDER));
  m_sandbox.write("user.toml", "[broken\n");
  const Ended ended = m_sandbox.cm({"provider", "install", VELDRA_SUBVERSION_PROVIDER});
  EXPECT_EQ(ended.code, 3);
  EXPECT_EQ(m_sandbox.read("user.toml"), "[broken\n");
}

TEST_F(ProviderCommandTest, ADryRunCallsNothing) {
  connectSample();
  const std::string unit = "Brewing/Grinder.vcmp";
  ASSERT_EQ(in("model", {"add", "--all", "-m", "all"}).code, 0);
  const std::string revision =
      m_sandbox.run({"svnlook", "youngest", m_sandbox.path("archive")}).out;
  for (const std::string command : {"checkout", "delete", "undo"}) {
    const Ended planned = in("model", {"--dry-run", command, unit});
    EXPECT_EQ(planned.code, 0) << planned.err;
    EXPECT_THAT(planned.out, HasSubstr("would "));
  }
  EXPECT_FALSE(m_sandbox.isWritable("model/" + unit));
  EXPECT_EQ(m_sandbox.run({"svnlook", "youngest", m_sandbox.path("archive")}).out, revision);
  EXPECT_THAT(m_sandbox.run({"svnadmin", "lslocks", m_sandbox.path("archive")}).out, "");
}

TEST_F(ProviderCommandTest, AComparisonWithANewerVersionLeavesTheFileAsItIs) {
  connectSample();
  const std::string unit = "Brewing/Grinder.vcmp";
  ASSERT_EQ(in("model", {"add", "--all", "-m", "all"}).code, 0);
  const Ended changed = m_sandbox.shell(
      "svn co -q file://$PWD/archive other --username alice --no-auth-cache && cd other &&\n"
      "svn lock -q --username alice --no-auth-cache Brewing/Grinder.vcmp &&\n"
      "sed -i 's/\"Grinder\"/\"Mill\"/' Brewing/Grinder.vcmp &&\n"
      "svn ci -q -m hers --username alice --no-auth-cache");
  ASSERT_EQ(changed.code, 0) << changed.err;
  const std::string before = m_sandbox.read("model/" + unit);
  const Ended compared = in("model", {"compare", unit});
  EXPECT_EQ(compared.code, 1) << compared.err;
  EXPECT_THAT(compared.out, HasSubstr("Mill"));
  EXPECT_EQ(m_sandbox.read("model/" + unit), before);
  EXPECT_EQ(m_sandbox.shell("svn status -q model").out, "") << "hers would be undone by a check-in";
}

TEST_F(ProviderCommandTest, TheDoctorLooksAtTheProvider) {
  connectSample();
  const Ended well = in("model", {"doctor"});
  EXPECT_EQ(well.code, 0) << well.out;
  EXPECT_THAT(well.out, AllOf(HasSubstr("ok    library: "), HasSubstr(" files")));
  std::string registry = m_sandbox.read("user.toml");
  const std::string library = VELDRA_SUBVERSION_PROVIDER;
  registry.replace(registry.find(library), library.size(), "/no/such/library.so");
  m_sandbox.write("user.toml", registry);
  const Ended ill = in("model", {"doctor"});
  EXPECT_EQ(ill.code, 1);
  EXPECT_THAT(ill.out, AllOf(HasSubstr("FAIL  library: "), HasSubstr("provider install")));
}

TEST_F(ProviderCommandTest, AnInterruptEndsACallThatHangs) {
  m_sandbox.copySample("model");
  makeProject();
  // The same place in the registry, another library behind it; the project's name chooses the
  // fault.
  std::string registry = m_sandbox.read("user.toml");
  registry.replace(registry.find(VELDRA_SUBVERSION_PROVIDER),
                   std::string(VELDRA_SUBVERSION_PROVIDER).size(), VELDRA_MISBEHAVING_PROVIDER);
  m_sandbox.write("user.toml", registry);
  ASSERT_EQ(in("model", {"property", "set", "SCC.ProjName", "hang"}).code, 0);
  const std::string unit = "model/Brewing/Grinder.vcmp";
  const std::string before = m_sandbox.read(unit);
  const Ended ended = m_sandbox.shell(
      "chmod a-w model/Brewing/Grinder.vcmp\n"
      "\"$CM\" -p model fetch Brewing/Grinder.vcmp & cm=$!\n"
      "sleep 2; kill -INT $cm; wait $cm\n");
  EXPECT_EQ(ended.code, 130);
  EXPECT_THAT(ended.err, AllOf(HasSubstr("SccGet"), HasSubstr("veldra-cm status")));
  EXPECT_EQ(m_sandbox.read(unit), before);
}

/// How many units the project has. With TMPDIR in memory 20,000 take half a minute; a disk that
/// others write to takes minutes to make the archive.
std::size_t manyUnits() {
  const char* const wish = std::getenv("VELDRA_MANY_UNITS");
  return wish != nullptr ? std::stoul(wish) : 2000;
}

TEST_F(ProviderCommandTest, StatusNamesExactlyWhatASecondUserHolds) {
  const std::size_t count = manyUnits();
  std::set<std::string> held;
  std::string lock;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string unit = "p" + std::to_string(i / 100) + "/u" + std::to_string(i) + ".puml";
    m_sandbox.write("drawn/" + unit, "@startuml\n@enduml\n");
    if (i % (count / 100) == 0 && held.insert(unit).second) {
      lock += "file://" + m_sandbox.path("archive/" + unit) + '\n';
    }
  }
  m_sandbox.write("list", lock);
  // svn brings so many files into an archive at once, and its working copies are the provider's.
  const Ended made = m_sandbox.shell(
      "url=file://$PWD/archive && svnadmin create archive &&\n"
      "svn import -q -m all drawn $url --config-option config:miscellany:enable-auto-props=yes "
      "--config-option 'config:auto-props:*=svn:needs-lock=*' &&\n"
      "svn checkout -q $url model &&\n"
      "svn lock -q --username alice --no-auth-cache --targets list");
  ASSERT_EQ(made.code, 0) << made.err;
  makeProject();
  ASSERT_EQ(in("model", {"connect", "--archive", m_sandbox.path("archive")}).code, 0);
  const Ended added = in("model", {"add", "--all", "-m", "the project's own file"});
  ASSERT_EQ(added.code, 0) << added.err.substr(0, 2000);

  const auto status = nlohmann::json::parse(in("model", {"status", "--json"}).out);
  EXPECT_EQ(status["units"].size(), count + 1) << "and the project";
  std::set<std::string> named;
  for (const auto& record : status["units"]) {
    if (record["state"] == "checked in" && record["locker"] == "") continue;
    EXPECT_EQ(record["locker"], "alice") << record;
    EXPECT_EQ(record["state"], "checked out by another user") << record;
    named.insert(record["path"]);
  }
  EXPECT_EQ(named, held);
  EXPECT_EQ(held.size(), 100U);
}

}  // namespace
}  // namespace veldra::live
