#include "host/ReferenceHost.h"

#include <gmock/gmock.h>

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
