// One scenario for every tool: what the program says is held against what the tool says.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>
#include <optional>

#include "tests/live/Serving.h"

namespace veldra::live {
namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr char Unit[] = "Brewing/Grinder.vcmp";

/// Quotes, keywords, line ends of both kinds, an indented line, bytes beyond ASCII, and length.
std::string hardComment() {
  std::string comment = "-m \"quoted\" 'single' > out | $log $Unit ${label} %PATH% `id` $(id)\r\n";
  comment += "second line; (a ? b : c) \\ @head@ é\n\n  indented\n";
  while (comment.size() < 100'000)
    comment += "a line of the comment, number " + std::to_string(comment.size()) + "\n";
  return comment;
}

struct ScenarioRow {
  const char* pack;
  const char* archive = "archive";  ///< What the archive is, for who reads the output.
  Serve serve = nullptr;            ///< Without one the archive is a folder.
};

class ScenarioTest : public testing::TestWithParam<ScenarioRow> {
 protected:
  void SetUp() override {
    const std::string program = traits().program;
    if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    if (GetParam().serve == nullptr) return;
    m_job.tool().makeArchive();
    m_address = GetParam().serve(m_job, m_server);
    ASSERT_TRUE(!m_server || m_server->isListening());
  }

  void TearDown() override {
    if (IsSkipped()) return;
    std::cout << "[ scenario ] " << GetParam().pack << ", " << GetParam().archive << ": " << m_done;
    for (const std::string& missing : m_notPossible) std::cout << "; not possible: " << missing;
    std::cout << std::endl;
  }

  void done(const char* step) {
    if (!HasFailure()) m_done += (m_done.empty() ? "" : ", ") + std::string(step);
  }

  /// Leaves a step out for a reason that lies in the tool; true when it is.
  bool leftOut(const char* step, const char* reason) {
    if (reason != nullptr) m_notPossible.push_back(std::string(step) + " (" + reason + ")");
    return reason != nullptr;
  }

  const Tool& tool() const { return m_job.tool(); }
  const ToolTraits& traits() const { return tool().traits(); }
  /// The commands that take a lock and give it back.
  const char* locking() const { return traits().noLockCommand ? "checkout" : "lock"; }
  const char* unlocking() const { return traits().noLockCommand ? "undo" : "unlock"; }

  void expectInArchive(const std::string& unit) {
    EXPECT_TRUE(tool().newestText(unit) == m_job.read(unit)) << unit;
    EXPECT_FALSE(m_job.isWritable(unit)) << unit;
    EXPECT_EQ(tool().holder(unit), "") << unit;
  }

  void connectAndAdd();
  void list();
  void checkOutAndIn();
  void checkInUnchanged();
  void properties();
  void labels();
  void undo();
  void locks();
  void recursively();
  void renameAndMove();
  void remove();

  Job m_job{GetParam().pack};
  std::optional<Server> m_server;
  std::string m_address = "archive";
  std::string m_done;
  std::vector<std::string> m_notPossible;
};

void ScenarioTest::connectAndAdd() {
  m_job.makeProject(m_address);
  EXPECT_EQ(tool().files(), std::set<std::string>());
  m_job.cm({"connect"});
  done("connect");

  EXPECT_THAT(m_job.cm({"add", "--all", "-m", "The machine as drawn"}).out, HasSubstr(Unit));
  EXPECT_GE(tool().files().size(), 40U);
  EXPECT_EQ(tool().files(), m_job.files());
  EXPECT_THAT(tool().newestComment(Unit), HasSubstr("The machine as drawn"));
  expectInArchive(Unit);
  EXPECT_EQ(m_job.cm({"add", "--all"}).out, "") << "what is archived is left alone";
  done("add");
}

void ScenarioTest::list() {
  const json listed = m_job.document({"ls"});
  EXPECT_EQ(Job::pathsOf(listed), tool().files());
  const bool hasVersions = !leftOut("versions in the listing", traits().noVersions);
  for (const json& file : listed["units"]) {
    EXPECT_EQ(file["version"].get<std::string>().empty(), !hasVersions) << file;
    EXPECT_EQ(file["mode"], "RO") << file;
    EXPECT_EQ(file["locker"], "") << file;
  }
  done("list");
}

void ScenarioTest::checkOutAndIn() {
  m_job.cm({"checkout", "Brewing::Grinder"});
  EXPECT_TRUE(m_job.isWritable(Unit));
  EXPECT_EQ(Job::unitOf(m_job.document({"status"}), Unit)["mode"], "RW");
  if (traits().noLocks == nullptr) {
    EXPECT_EQ(tool().holder(Unit), "alice");
    EXPECT_EQ(Job::unitOf(m_job.document({"ls"}), Unit)["locker"], "alice");
  }
  // Who repeats a command is not refused what is his already.
  m_job.cm({"checkout", Unit, "Milk/Milk.vpkg"});
  m_job.cm({locking(), Unit});
  m_job.cm({"undo", "Milk/Milk.vpkg"});
  done("check out");

  m_job.change(Unit, "\"5\"", "\"6\"");
  const std::string comment = hardComment();
  m_job.cm({"checkin", Unit, "-F", "-"}, comment);
  expectInArchive(Unit);
  EXPECT_THAT(tool().newestText(Unit), HasSubstr("\"6\""));
  // Too long to be shown.
  EXPECT_TRUE(tool().newestComment(Unit) == tool().kept(comment));
  done("check in");

  EXPECT_THAT(m_job.cm({"history", Unit}).out, HasSubstr("The machine as drawn"));
  const json history = m_job.document({"history", Unit});
  EXPECT_THAT(history["units"][0]["message"].get<std::string>(), HasSubstr("`id` $(id)"));
  done("history");

  const json archived = Job::unitOf(m_job.document({"ls"}), Unit);
  const json local = Job::unitOf(m_job.document({"status"}), Unit);
  if (leftOut("version in the file", traits().noKeywords)) return;
  EXPECT_EQ(archived["version"], local["version"]);
}

void ScenarioTest::checkInUnchanged() {
  const std::string comment = tool().newestComment(Unit);
  m_job.cm({"checkout", Unit, "Milk/Milk.vpkg"});
  m_job.change("Milk/Milk.vpkg", "Steam", "Hot steam");
  const json told = m_job.document({"checkin", Unit, "Milk/Milk.vpkg", "-m", "nothing"});
  EXPECT_THAT(Job::unitOf(told, Unit)["message"].get<std::string>(), HasSubstr("has changed"));
  EXPECT_EQ(Job::unitOf(told, "Milk/Milk.vpkg")["message"], "");
  expectInArchive(Unit);
  EXPECT_EQ(tool().newestComment(Unit), comment);
  m_job.cm({"checkout", Unit});
  const Ended alone = m_job.cm({"checkin", Unit, "-m", "for nothing"});
  EXPECT_THAT(alone.out, HasSubstr("Nothing in " + m_job.sandbox().path("model/") + Unit));
  EXPECT_THAT(alone.err, HasSubstr("--last-comment"));
  done("check in an unchanged unit");
}

void ScenarioTest::properties() {
  m_job.cm({"checkout", Unit});
  const json properties = Job::unitOf(m_job.document({"properties", Unit}), Unit);
  const Ended shown = m_job.cm({"properties", Unit});
  if (traits().ownProperties != nullptr) {
    EXPECT_THAT(properties["message"].get<std::string>(), HasSubstr(traits().ownProperties));
    EXPECT_THAT(shown.out, HasSubstr(traits().ownProperties));
  } else {
    EXPECT_EQ(properties["state"], "checked out");
    EXPECT_EQ(properties["version"], Job::unitOf(m_job.document({"ls"}), Unit)["version"]);
    EXPECT_THAT(shown.out, HasSubstr("version  "));
  }
  EXPECT_EQ(m_job.tryCm({"properties", "No/Such"}).code, 3);
  const Ended refreshed = m_job.cm({"refresh"});
  EXPECT_THAT(refreshed.out, HasSubstr("checked out  1\n"));
  EXPECT_THAT(refreshed.out, HasSubstr(Unit));
  m_job.cm({"undo", Unit});
  done("properties, refresh");
}

void ScenarioTest::labels() {
  m_job.cm({"checkout", Unit});
  m_job.change(Unit, "\"6\"", "\"7\"");
  if (leftOut("label, fetch by label", traits().noLabels)) {
    for (const char* const command : {"checkin", "fetch"}) {
      const Ended refused = m_job.tryCm({command, Unit, "-l", "R1-0"});
      EXPECT_EQ(refused.code, 3) << command;
      EXPECT_THAT(refused.err, HasSubstr("knows no labels"));
    }
    m_job.cm({"checkin", Unit, "-m", "to be delivered"});
    return;
  }
  m_job.cm({"checkin", Unit, "-m", "to be delivered", "-l", "R1-0"});
  const std::string labelled = m_job.read(Unit);
  EXPECT_EQ(tool().textAt("R1-0", Unit), labelled);
  done("label");

  m_job.cm({"checkout", Unit});
  m_job.change(Unit, "\"7\"", "\"8\"");
  m_job.cm({"checkin", Unit, "-m", "after the delivery"});
  const std::string newest = m_job.read(Unit);
  m_job.cm({"fetch", Unit, "-l", "R1-0"});
  EXPECT_EQ(m_job.read(Unit), labelled);
  EXPECT_FALSE(m_job.isWritable(Unit));
  EXPECT_NE(m_job.tryCm({"fetch", Unit, "-l", "NoSuch"}).code, 0);
  m_job.cm({"fetch", Unit});
  EXPECT_EQ(m_job.read(Unit), newest);
  done("fetch by label");
}

void ScenarioTest::undo() {
  const std::string archived = m_job.read(Unit);
  m_job.cm({"checkout", Unit});
  m_job.change(Unit, "Grinds", "Spills");
  m_job.cm({"undo", Unit});
  EXPECT_EQ(m_job.read(Unit), archived);
  expectInArchive(Unit);
  done("undo");
}

void ScenarioTest::locks() {
  const bool hasCommand = !leftOut("lock and unlock as commands", traits().noLockCommand);
  for (const char* const command : {"lock", "unlock"}) {
    if (hasCommand) continue;
    const Ended refused = m_job.tryCm({command, Unit});
    EXPECT_EQ(refused.code, 3) << command;
    EXPECT_THAT(refused.err, HasSubstr("provider"));
  }
  m_job.cm({locking(), Unit});
  EXPECT_TRUE(m_job.isWritable(Unit));
  if (!leftOut("lock, and unlock by another", traits().noLocks)) {
    EXPECT_EQ(tool().holder(Unit), "alice");
    m_job.become("bob", "second");
    tool().checkOut(m_server ? m_address : tool().archive(), "second");
    m_job.cm({"connect"});
    const Ended refused = m_job.tryCm({"checkout", Unit, "Milk/Milk.vpkg"});
    EXPECT_EQ(refused.code, 1) << refused.err;
    EXPECT_THAT(refused.err, HasSubstr("alice"));
    EXPECT_EQ(tool().holder("Milk/Milk.vpkg"), "bob");
    m_job.tryCm({unlocking(), Unit});
    EXPECT_EQ(tool().holder(Unit), "alice") << "a lock is its holder's to give back";
    EXPECT_EQ(Job::unitOf(m_job.document({"ls"}), Unit)["locker"], "alice");
    m_job.cm({unlocking(), "Milk/Milk.vpkg"});
    m_job.become("alice", "model");
    done(hasCommand ? "lock" : "lock by check out, refusal to another");
  }
  m_job.cm({unlocking(), Unit});
  expectInArchive(Unit);
  done(hasCommand ? "unlock" : "unlock by undo");
}

void ScenarioTest::recursively() {
  const std::string inner = "Brewing/Water Circuit/Pump.vcmp";
  const std::string archived = m_job.read(inner);
  m_job.cm({"checkout", "-r", "Brewing"});
  EXPECT_TRUE(m_job.isWritable(inner));
  m_job.change(inner, "9 bar", "15 bar");
  m_job.change(Unit, "Grinds", "Mills");
  m_job.cm({"checkin", "-r", "Brewing", "-m", "more pressure"});
  for (const std::string unit : {inner.c_str(), Unit}) {
    expectInArchive(unit);
    EXPECT_THAT(tool().newestComment(unit), HasSubstr("more pressure"));
  }
  EXPECT_THAT(tool().newestComment("Brewing/Drip Tray.vcmp"), HasSubstr("The machine as drawn"));
  m_job.cm({"checkout", "-r", "Brewing"});
  m_job.change(inner, "15 bar", "99 bar");
  m_job.cm({"undo", "-r", "Brewing"});
  expectInArchive(inner);
  EXPECT_THAT(m_job.read(inner), HasSubstr("15 bar"));
  done("recursive check out, check in and undo");
}

void ScenarioTest::renameAndMove() {
  m_job.cm({"checkout", Unit});
  m_job.cm({"rename", "-m", "a better name", Unit, "Mill"});
  expectInArchive("Brewing/Mill.vcmp");
  EXPECT_EQ(tool().files(), m_job.files());
  EXPECT_FALSE(tool().files().contains(Unit));
  EXPECT_THAT(tool().newestComment("Brewing/Mill.vcmp"), HasSubstr("a better name"));
  m_job.cm({"checkout", "Control"});
  m_job.cm({"rename", "-m", "a clearer name", "Control", "Controls"});
  EXPECT_EQ(tool().files(), m_job.files());
  expectInArchive("Controls/Controls.vpkg");
  EXPECT_THAT(tool().newestComment("Controls/Controls.vpkg"), HasSubstr("a clearer name"));
  done("rename a unit and a package");

  m_job.cm({"move", "-m", "elsewhere", "Brewing/Mill.vcmp", "Milk"});
  expectInArchive("Milk/Mill.vcmp");
  m_job.cm({"move", "-m", "a whole package", "Brewing", "Product"});
  EXPECT_EQ(tool().files(), m_job.files());
  expectInArchive("Product/Brewing/Water Circuit/Pump.vcmp");
  EXPECT_EQ(Job::pathsOf(m_job.document({"status"})), tool().files());
  done("move a unit and a package");

  if (leftOut("history across moves", traits().noTrail)) return;
  EXPECT_THAT(m_job.cm({"history", "Milk/Mill.vcmp"}).out, HasSubstr("The machine as drawn"));
}

void ScenarioTest::remove() {
  m_job.cm({"delete", "-m", "not needed", "Milk/Mill.vcmp"});
  EXPECT_FALSE(tool().files().contains("Milk/Mill.vcmp"));
  EXPECT_NE(m_job.tryCm({"delete", "Product/Brewing"}).code, 0) << "not without -r";
  m_job.cm({"delete", "-r", "-m", "bought in", "Product/Brewing"});
  EXPECT_FALSE(tool().files().contains("Product/Brewing/Water Circuit/Pump.vcmp"));
  EXPECT_EQ(tool().files(), m_job.files());
  EXPECT_EQ(Job::pathsOf(m_job.document({"status"})), tool().files());
  EXPECT_EQ(Job::pathsOf(m_job.document({"ls"})), tool().files());
  done("delete");
}

TEST_P(ScenarioTest, FromConnectionToDeletion) {
  connectAndAdd();
  list();
  checkOutAndIn();
  checkInUnchanged();
  properties();
  labels();
  undo();
  locks();
  recursively();
  renameAndMove();
  remove();
}

std::string scenarioName(const testing::TestParamInfo<ScenarioRow>& info) {
  std::string name = info.param.pack;
  if (info.param.archive != ScenarioRow().archive) name += info.param.archive;
  std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(
    Packs, ScenarioTest,
    testing::Values(ScenarioRow{"Subversion"}, ScenarioRow{"RCS"}, ScenarioRow{"CVS"},
                    ScenarioRow{"Git"}, ScenarioRow{"Mercurial"},
                    ScenarioRow{"Subversion provider", "file://"},
                    ScenarioRow{"Subversion provider", "svnserve", serveSubversion}),
    scenarioName);

}  // namespace
}  // namespace veldra::live
