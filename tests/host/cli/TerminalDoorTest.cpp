#include "host/cli/TerminalDoor.h"

#include <gtest/gtest.h>

#include <sstream>

#include "cm/host/IUserMessages.h"

namespace veldra::host::cli {
namespace {

/// A door with somebody (or nobody) behind it.
struct Talk {
  explicit Talk(const std::string& input, bool asks = true)
      : in(input), console{.in = in, .out = out, .err = err, .asks = asks} {}
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  Console console;
};

TEST(TerminalDoorTest, OverwriteAnswers) {
  struct Row {
    const char* input;
    const char* answer;
    bool quits;
  };
  const Row rows[] = {
      {"y\n", "yes", false},   {"No\n", "no", false}, {"a\n", "yestoall", false},
      {"Q\n", "cancel", true}, {"", "cancel", true},  {"what?\n\ny\n", "yes", false},
  };
  for (const Row& row : rows) {
    Talk talk(row.input);
    TerminalDoor door(talk.console, false);
    bool quits = false;
    door.setQuitListener([&] { quits = true; });
    EXPECT_EQ(door.askOverwrite("Overwrite?"), row.answer) << row.input;
    EXPECT_EQ(quits, row.quits) << row.input;
    EXPECT_NE(talk.err.str().find("Overwrite?"), std::string::npos);
  }
}

TEST(TerminalDoorTest, NobodyThereMeansNothingChanges) {
  Talk talk("y\ny\ny\n", false);
  TerminalDoor door(talk.console, false);
  EXPECT_EQ(door.askOverwrite("Overwrite?"), "no");
  EXPECT_EQ(door.ask("Sure?", MessageBox::YesNo), MessageBox::AnswerNo);
  EXPECT_EQ(door.ask("Sure?", MessageBox::YesNoCancel), MessageBox::AnswerCancel);
  TerminalDoor forced(talk.console, true);
  EXPECT_EQ(forced.askOverwrite("Overwrite?"), "yestoall");
}

TEST(TerminalDoorTest, TextsAreShownOnceAndNeverAsResults) {
  Talk talk("");
  TerminalDoor door(talk.console, false);
  door.mute("known");
  door.notify("Careful \x1b[1m.", 2);
  EXPECT_EQ(door.ask("Careful \x1b[1m.", MessageBox::IconWarning), MessageBox::AnswerOk);
  EXPECT_EQ(door.ask("known", MessageBox::IconError), MessageBox::AnswerOk);
  EXPECT_EQ(talk.err.str(), "Careful \\x1b[1m.\n");
  EXPECT_EQ(talk.out.str(), "");
}

}  // namespace
}  // namespace veldra::host::cli
