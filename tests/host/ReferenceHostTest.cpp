#include "host/ReferenceHost.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

class CountingDoor : public UserDoor {
 public:
  void notify(const std::string&, int) override { ++notices; }
  int ask(const std::string&, int) override {
    ++questions;
    return MessageBox::AnswerYes;
  }
  std::string askOverwrite(const std::string&) override { return "yestoall"; }

  int notices = 0;
  int questions = 0;
};

class ReferenceHostTest : public testing::Test {
 protected:
  HostOptions options() {
    HostOptions options;
    options.installationRoot = model.root();
    options.output = &output;
    options.door = &door;
    options.settings = SettingsFiles{{}, model.path("site.toml"), model.path("user.toml")};
    options.seenMessagesFile = model.path("state/seen");
    options.traceLog = model.path("trace.log");
    return options;
  }

  TempModel model;
  std::ostringstream output;
  CountingDoor door;
};

TEST_F(ReferenceHostTest, limitsOfKeptCopiesAreNumbers) {
  for (const std::string value : {"0", "64", "17592186044416", "99999999999999999999999"}) {
    model.put("user.toml", "[General]\nKeptCopiesMegabytes = '" + value + "'\nKeptCopiesDays = '" +
                               value + "'\n");
    ReferenceHost host(options());
    EXPECT_TRUE(host.problems().empty()) << value;
    model.putProject();
    model.putUnit("P.vcmp");
    ASSERT_EQ(host.open(model.root()), std::nullopt);
    std::string reason;
    EXPECT_TRUE(host.kept().keep(model.path("P.vcmp"), "undo", reason)) << value << reason;
    EXPECT_EQ(host.kept().list().size(), 1U) << value;
    ReferenceHost next(options());
    ASSERT_EQ(next.open(model.root()), std::nullopt);
    EXPECT_TRUE(next.kept().keep(model.path("M.vdy"), "undo", reason)) << value << reason;
    EXPECT_EQ(next.kept().list().size(), value == "0" ? 1U : 2U) << value;
    std::filesystem::remove_all(model.path(".veldra"));
  }
  for (const std::string value : {"-1", "many", "1.5", ""}) {
    model.put("user.toml", "[General]\nKeptCopiesMegabytes = '" + value + "'\n");
    const ReferenceHost host(options());
    ASSERT_EQ(host.problems().size(), 1U) << value;
    EXPECT_THAT(sentence(host.problems()[0]), HasSubstr("KeptCopiesMegabytes: '" + value + "'"));
  }
}

TEST_F(ReferenceHostTest, opensSavesAndClosesProjects) {
  model.putProject();
  model.putUnit("P.vcmp");
  ReferenceHost host(options());
  EXPECT_EQ(host.model().activeProject(), nullptr);
  EXPECT_EQ(host.model().repositoryFiles(), nullptr);
  EXPECT_TRUE(host.save().empty());
  ASSERT_EQ(host.open(model.root()), std::nullopt);
  const std::unique_ptr<IObIterator> files = host.model().repositoryFiles();
  EXPECT_EQ(files->first(), host.model().activeProject());
  EXPECT_EQ(files->next()->getName(), "P");
  EXPECT_EQ(files->next(), nullptr);
  host.properties().setInProject({"S", "M", "n"}, "v");
  EXPECT_TRUE(host.save().empty());
  EXPECT_THAT(model.read("M.vdy"), HasSubstr("\"n\": \"v\""));
  EXPECT_THAT(host.open(model.path("none")).value_or(""), HasSubstr("does not exist"));
  EXPECT_EQ(host.project(), nullptr);
  EXPECT_EQ(host.properties().find({"S", "M", "n"}), nullptr);
}

TEST_F(ReferenceHostTest, settingsOfTheUserReachTheEnvironment) {
  model.put("user.toml", "[General]\nShowMessageOnCMCommandTimeout = \"TRUE\"\n");
  ReferenceHost host(options());
  std::string value;
  EXPECT_EQ(host.environment().omGetEnvVar("General", "ShowMessageOnCMCommandTimeout", value, ""),
            1);
  EXPECT_EQ(value, "TRUE");
}

TEST_F(ReferenceHostTest, oneTimeMessagesAreShownOnceForEver) {
  for (const int expected : {1, 1}) {
    ReferenceHost host(options());
    host.messages().oneTimeMessageBox("KEY", "text", 0);
    host.messages().oneTimeMessageBox("KEY", "text", 0);
    EXPECT_EQ(door.questions, expected);
  }
}

TEST_F(ReferenceHostTest, withoutADoorNothingIsOverwritten) {
  HostOptions silent = options();
  silent.door = nullptr;
  ReferenceHost host(silent);
  EXPECT_EQ(host.messages().askOverwrite("t"), "no");
  EXPECT_EQ(host.messages().notifyUserAndAsk("t", MessageBox::YesNo | MessageBox::IconQuestion, 2),
            MessageBox::AnswerNo);
  EXPECT_EQ(host.messages().notifyUserAndAsk("t", MessageBox::YesNoCancel, 2),
            MessageBox::AnswerCancel);
  EXPECT_EQ(host.messages().notifyUserAndAsk("t", MessageBox::IconError, 2), MessageBox::AnswerOk);
}

TEST_F(ReferenceHostTest, replacedUnitsLiveUntilTheNextOperation) {
  model.putProject();
  model.putUnit("P.vcmp");
  ReferenceHost host(options());
  ASSERT_EQ(host.open(model.root()), std::nullopt);
  Undoer& undo = *host.undoer();
  undo.startTransaction(nullptr, 0);
  IUnit* old = host.model().unitByFile("P.vcmp");
  const std::unique_ptr<IHandle> handle = old->getHandle();
  undo.startTransaction(nullptr, 0);
  IUnit* fresh = host.quickReload()->reloadUnit(old);
  undo.endTransaction();
  EXPECT_EQ(old->getName(), "P") << "a caller may still look at the old object";
  EXPECT_EQ(handle->doGetObject(), nullptr);
  EXPECT_EQ(host.model().unitByFile("P.vcmp"), fresh);
  undo.endTransaction();
}

}  // namespace
}  // namespace veldra::host
