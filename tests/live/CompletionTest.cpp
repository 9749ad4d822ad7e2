// What the shells offer behind a half written command line.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

/// Words are completed as bash parts them, at colons, too.
class BashCompletion : public testing::Test {
 protected:
  void SetUp() override {
    m_sandbox.copySample("model");
    ASSERT_EQ(m_sandbox.cm({"init", "model", "--name", "M"}).code, 0);
  }
  std::string complete(const std::string& tries) {
    m_sandbox.write("complete.bash",
                    m_sandbox.cm({"manual", "bash"}).out +
                        "try() { COMP_WORDS=(veldra-cm \"$@\"); COMP_CWORD=$#; "
                        "COMP_LINE=${line-${COMP_WORDS[*]}}; COMP_POINT=${#COMP_LINE}; "
                        "_veldra_cm; (IFS='|'; echo \"${COMPREPLY[*]}\"); }\n" +
                        tries);
    const Ended completed = m_sandbox.shell("PATH=\"${CM%/*}:$PATH\"; exec bash complete.bash");
    EXPECT_EQ(completed.err, "");
    return completed.out;
  }
  Sandbox m_sandbox;
};

TEST_F(BashCompletion, KnowsCommandsOptionsFilesAndNames) {
  EXPECT_EQ(complete("try che; try checkin --mes; try -p x pack sh\n"
                     "try -p model lock 'Brewing/D'; cd model/Milk; try undo Brewing/Gr\n"
                     "line='veldra-cm undo Brewing::D' try undo Brewing :: D\n"
                     "line='veldra-cm undo Brewing::Water\\ Circuit::' "
                     "try undo Brewing :: 'Water\\ Circuit' ::\n"
                     "try undo '\"Brewing::Gr'\n"),
            "checkin|checkout\n--message\nshow\n"
            "Brewing/Drip Tray.vcmp\nBrewing/Grinder.vcmp\n"
            "Drip Tray\n"
            "Boiler|Descaling|Flow Meter|Piping|Pump|Tank|Valve\n"
            "Brewing::Grinder\n");
  EXPECT_THAT(complete("try ''\n"), HasSubstr("doctor"));
}

TEST_F(BashCompletion, RunsNothingThatStandsInANameOfAFile) {
  m_sandbox.write("model/$(touch ran).puml", "@startuml\n@enduml\n");
  m_sandbox.write("model/`touch ran`.puml", "@startuml\n@enduml\n");
  m_sandbox.write("model/it's; \\.puml", "@startuml\n@enduml\n");
  const std::string offered = complete("cd model; try lock ''; try lock '\\$'\n");
  EXPECT_THAT(offered, HasSubstr("|it's; \\.puml\n"));
  EXPECT_THAT(offered, testing::EndsWith("\n\n"));
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/ran")));
}

/// In a shell of its own, on a terminal.
class ZshCompletion : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("zsh")) GTEST_SKIP() << "zsh is not installed";
    m_sandbox.copySample("my model");
    ASSERT_EQ(m_sandbox.cm({"init", "my model", "--name", "M"}).code, 0);
    std::filesystem::create_directory(m_sandbox.path("functions"));
    m_sandbox.write("functions/_veldra-cm", m_sandbox.cm({"manual", "zsh"}).out);
  }

  /// The line after a press of the tabulator.
  std::string complete(const std::string& line) {
    m_sandbox.write("complete.zsh", R"zsh(
zmodload zsh/zpty
zpty terminal zsh -f -i
zpty -w terminal 'fpath=($PWD/functions $fpath); autoload -U compinit; compinit -u -D
show() { print -r -- "<$BUFFER>"; BUFFER=; }; zle -N show
bindkey "^I" complete-word; bindkey "^X" show; stty -echo; print re""ady'
zpty -r -m terminal out "*ready*"
zpty -n -w terminal "$1"$'\t\x18'
zpty -r -m terminal out "*<*>*"
out=${out##*<}
print -r -- "${out%%>*}"
)zsh");
    return m_sandbox
        .shell("PATH=\"${CM%/*}:$PATH\"; exec timeout 60 zsh -f complete.zsh '" + line + "'")
        .out;
  }

  Sandbox m_sandbox;
};

TEST_F(ZshCompletion, KnowsTheUnitsOfTheProjectThatIsNamed) {
  EXPECT_EQ(complete("veldra-cm -p my\\ model undo Milk/St"),
            "veldra-cm -p my\\ model undo Milk/Steam\\ Wand.vcmp \n");
  EXPECT_EQ(complete("veldra-cm undo -v --project=\"my model\" Milk/St"),
            "veldra-cm undo -v --project=\"my model\" Milk/Steam\\ Wand.vcmp \n");
  EXPECT_EQ(complete("veldra-cm checko"), "veldra-cm checkout \n");
}

TEST_F(ZshCompletion, RunsNothingThatStandsOnTheLine) {
  for (const std::string line :
       {"veldra-cm -p $(touch ran) undo Milk/St", "veldra-cm -p \"`touch ran`\" undo Milk/St"}) {
    EXPECT_EQ(complete(line), line + "\n");
  }
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("ran")));
}

}  // namespace
}  // namespace veldra::live
