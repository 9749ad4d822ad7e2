// Deleting, moving, renaming and the recursive forms with real tools: what the program says is held
// against what the tool says, also when the tool fails half-way.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/PackTest.h"
#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

class RearrangingTest : public PackTest {
 protected:
  void SetUp() override {
    PackTest::SetUp();
    if (!isReady()) return;
    cm(0, {"-p", "model", "add", "--all", "-m", "first"});
  }

  Ended cm(int code, const std::vector<std::string>& arguments) {
    const Ended ended = m_sandbox.cm(arguments);
    EXPECT_EQ(ended.code, code) << testing::PrintToString(arguments) << "\n"
                                << ended.out << ended.err;
    return ended;
  }
  Ended inModel(int code, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return cm(code, arguments);
  }

  /// The files of the model that are its own, not the tool's.
  std::map<std::string, FileState> onDisk() {
    std::map<std::string, FileState> files = m_sandbox.files("model");
    std::erase_if(files, [](const auto& file) {
      return file.first.starts_with('.') || ("/" + file.first).find("/CVS/") != std::string::npos;
    });
    return files;
  }
  /// Model, disk and archive name the same files.
  void expectAgreement() {
    std::set<std::string> disk;
    for (const auto& [name, state] : onDisk()) disk.insert(name);
    EXPECT_EQ(m_tool->files(), disk);
    const std::string listed = inModel(0, {"status"}).out;
    for (const std::string& name : disk) EXPECT_THAT(listed, HasSubstr(name));
  }

  /// The history goes back to the time before the moves, where the tool can follow them.
  void expectTrail(const std::string& unit) {
    const std::string history = inModel(0, {"history", unit}).out;
    EXPECT_EQ(history.find("first") != std::string::npos, m_tool->traits().noTrail == nullptr);
  }

  std::unique_ptr<Tool> m_tool = makeTool(GetParam(), m_sandbox);
};

TEST_P(RearrangingTest, HistoryFollowsAUnitThatIsRenamedAndMoved) {
  inModel(3, {"rename", "Brewing/Grinder.vcmp", "Mill"});
  inModel(0, {"checkout", "Brewing/Grinder.vcmp"});
  inModel(0, {"--dry-run", "rename", "Brewing/Grinder.vcmp", "Mill & Co"});
  EXPECT_TRUE(m_sandbox.isWritable("model/Brewing/Grinder.vcmp"));
  inModel(0, {"rename", "Brewing/Grinder.vcmp", "Mill & Co", "-m", "A better name"});
  EXPECT_THAT(m_sandbox.read("model/Brewing/Mill & Co.vcmp"), HasSubstr("\"Mill & Co\""));
  EXPECT_FALSE(m_sandbox.isWritable("model/Brewing/Mill & Co.vcmp"));
  EXPECT_THAT(m_tool->newestComment("Brewing/Mill & Co.vcmp"), HasSubstr("A better name"));
  // The tool may remember that something has been checked out in that folder.
  inModel(0, {"checkout", "Brewing/Drip Tray.vcmp"});
  inModel(0, {"checkin", "Brewing/Drip Tray.vcmp"});
  inModel(0, {"move", "Brewing::Mill & Co", "Control::Safety", "-m", "It is dangerous"});
  expectTrail("Control::Safety::Mill & Co");
  EXPECT_THAT(m_tool->newestComment("Control/Safety/Mill & Co.vcmp"), HasSubstr("dangerous"));
  expectAgreement();
}

TEST_P(RearrangingTest, HistoryFollowsAFileThatIsWrittenAnewAndMovedAtOnce) {
  m_sandbox.write("model/Flow.puml", "@startuml\nA -> B\n@enduml\n");
  inModel(0, {"add", "Flow.puml", "-m", "first", "-l", "Before"});
  inModel(0, {"checkout", "Flow.puml"});
  const std::string text = "'" + std::string(200, 'x') + "\nnothing of the old\n";
  m_sandbox.write("model/Flow.puml", text);
  inModel(0, {"move", "Flow.puml", "Milk", "-m", "moved"});
  EXPECT_EQ(m_tool->newestText("Milk/Flow.puml"), text);
  EXPECT_FALSE(m_sandbox.isWritable("model/Milk/Flow.puml"));
  expectTrail("Milk/Flow.puml");
  // Where the label belongs to the former place, the file stays as it is.
  m_sandbox.cm({"-p", "model", "fetch", "Milk/Flow.puml", "-l", "Before"});
  inModel(0, {"fetch", "Milk/Flow.puml"});
  EXPECT_EQ(m_sandbox.read("model/Milk/Flow.puml"), text);
  expectAgreement();
}

TEST_P(RearrangingTest, AFileWithTheStateOfALabelTakesNoNewerOneBack) {
  const std::string newest = "@startuml\nA -> B\nB -> C\n@enduml\n";
  m_sandbox.write("model/Flow.puml", "@startuml\nA -> B\n@enduml\n");
  inModel(0, {"add", "Flow.puml", "-m", "first", "-l", "Old"});
  inModel(0, {"checkout", "Flow.puml"});
  m_sandbox.write("model/Flow.puml", newest);
  inModel(0, {"checkin", "Flow.puml", "-m", "second"});
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"checkin", "Flow.puml", "-m", "x"},
        {"lock", "Flow.puml"},
        {"checkin", "Flow.puml", "-m", "x"},
        {"move", "Flow.puml", "Milk", "-m", "x"}}) {
    m_sandbox.cm({"-p", "model", "fetch", "Flow.puml", "-l", "Old"});
    std::vector<std::string> arguments{"-p", "model"};
    arguments.insert(arguments.end(), command.begin(), command.end());
    const bool isDone = m_sandbox.cm(arguments).code == 0;
    const bool isMoved = isDone && command.front() == "move";
    EXPECT_EQ(m_tool->newestText(isMoved ? "Milk/Flow.puml" : "Flow.puml"), newest)
        << testing::PrintToString(command);
  }
}

TEST_P(RearrangingTest, WhatIsLostWithAMoveIsTold) {
  EXPECT_EQ(inModel(0, {"move", "Brewing::Grinder", "Milk"}).out.find("history stays") !=
                std::string::npos,
            m_tool->traits().noTrail != nullptr);
}

TEST_P(RearrangingTest, APackageIsMovedAndRenamedWithEverythingInIt) {
  // What a tool writes into the header may tell of the move.
  const auto body = [this](const std::string& file) {
    const std::string text = m_tool->newestText(file);
    return text.substr(text.find('{'));
  };
  const std::string pump = body("Brewing/Water Circuit/Pump.vcmp");
  inModel(0, {"move", "Brewing/Water Circuit", "Milk", "-m", "moved"});
  inModel(0, {"checkout", "Milk", "Milk/Steam Wand.vcmp"});
  inModel(0, {"rename", "Milk", "Crème @ Co", "-m", "renamed"});
  const std::string wand = "Crème @ Co/Steam Wand.vcmp";
  EXPECT_TRUE(m_sandbox.isWritable("model/" + wand)) << "it stays checked out";
  const bool hasLocks = m_tool->traits().noLocks == nullptr;
  EXPECT_EQ(m_tool->holder(wand), hasLocks ? "alice" : "");
  EXPECT_FALSE(m_sandbox.isWritable("model/Crème @ Co/Crème @ Co.vpkg"));
  EXPECT_THAT(m_sandbox.read("model/Crème @ Co/Crème @ Co.vpkg"), HasSubstr("Crème @ Co"));
  EXPECT_EQ(body("Crème @ Co/Water Circuit/Pump.vcmp"), pump);
  expectTrail("Crème @ Co/Water Circuit/Pump.vcmp");
  expectAgreement();
}

TEST_P(RearrangingTest, AFolderWithoutAFileOfItsOwnIsAPackageLikeAnyOther) {
  m_sandbox.write("model/Plans 1.0/deep/A.puml", "@startuml\nA -> B\n@enduml\n");
  m_sandbox.write("model/Plans 1.0/ B.puml", "@startuml\nC -> D\n@enduml\n");
  inModel(0, {"add", "-r", "Plans 1.0", "-m", "first"});
  inModel(0, {"checkout", "Plans 1.0/ B.puml"});
  EXPECT_THAT(inModel(3, {"move", "Plans 1.0", "Plans 1.0/deep"}).err, HasSubstr("into itself"));
  inModel(0, {"--dry-run", "move", "Plans 1.0", "Milk"});
  inModel(0, {"move", "Plans 1.0", "Milk", "-m", "moved"});
  inModel(0, {"rename", "Milk::Plans 1.0", "Plans; 2.0", "-m", "renamed"});
  EXPECT_TRUE(m_sandbox.isWritable("model/Milk/Plans; 2.0/ B.puml"));
  expectTrail("Milk::Plans; 2.0::deep::A");
  expectAgreement();
  inModel(0, {"undo", "Milk/Plans; 2.0/ B.puml"});
  inModel(3, {"delete", "Milk/Plans; 2.0"});
  inModel(0, {"delete", "-r", "Milk/Plans; 2.0", "-m", "no plans"});
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/Milk/Plans; 2.0")));
  expectAgreement();
  // What the project does not know is no package of it.
  m_sandbox.write("model/.hidden/x", "x");
  inModel(3, {"delete", "-r", ".hidden"});
  EXPECT_EQ(m_sandbox.read("model/.hidden/x"), "x");
}

TEST_P(RearrangingTest, DeletedUnitsLeaveTheArchiveTheModelAndTheDisk) {
  inModel(0, {"delete", "Brewing/Grinder.vcmp", "-m", "no longer"});
  inModel(3, {"delete", "Milk"});
  EXPECT_THAT(inModel(3, {"delete", "-r", "Machine.vdy"}).err, HasSubstr("project itself"));
  inModel(1, {"delete", "-r", "Milk", "Milk/Steam Wand.vcmp", "Brewing::Boiler"});
  EXPECT_EQ(onDisk().count("Milk/Milk.vpkg"), 1U) << "a unit named twice deletes nothing";
}

TEST_P(RearrangingTest, APackageIsDeletedWithEverythingInItUnlessThatIsChanged) {
  inModel(0, {"checkout", "Milk/Steam Wand.vcmp"});
  m_sandbox.write("model/Milk/Steam Wand.vcmp", m_sandbox.read("model/Milk/Steam Wand.vcmp") + " ");
  const auto before = onDisk();
  const std::set<std::string> archived = m_tool->files();
  EXPECT_THAT(inModel(3, {"delete", "-r", "Milk"}).err,
              HasSubstr("The archive holds Milk/Milk.vp"));
  EXPECT_EQ(onDisk(), before);
  EXPECT_EQ(m_tool->files(), archived);
  inModel(0, {"undo", "Milk/Steam Wand.vcmp"});
  m_sandbox.write("model/Milk/Crème/New.puml", "@startuml\n@enduml\n");
  EXPECT_THAT(inModel(3, {"delete", "-r", "Milk"}).err, HasSubstr("New.puml"));
  EXPECT_EQ(onDisk().count("Milk/Crème/New.puml"), 1U) << "the archive has nothing of it";
  std::filesystem::remove(m_sandbox.path("model/Milk/Crème/New.puml"));
  inModel(0, {"delete", "-r", "Milk", "-m", "no milk today"});
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/Milk")));
  expectAgreement();
}

TEST_P(RearrangingTest, WhatSomebodyElseHoldsStaysInItsPlace) {
  if (m_tool->traits().noLocks != nullptr) GTEST_SKIP() << m_tool->traits().noLocks;
  m_tool->makeWorkingCopy("model", "bobs");
  m_sandbox.become("bob");
  cm(0, {"-p", "bobs", "checkout", "Milk/Steam Wand.vcmp"});
  m_sandbox.become("alice");
  const auto before = onDisk();
  const std::set<std::string> archived = m_tool->files();
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"delete", "Milk/Steam Wand.vcmp"},
        {"move", "Milk/Steam Wand.vcmp", "Control"},
        {"delete", "-r", "Milk"},
        {"move", "Milk", "Control"}}) {
    EXPECT_THAT(inModel(3, command).err, HasSubstr("bob"));
    EXPECT_EQ(onDisk(), before) << command.front();
    EXPECT_EQ(m_tool->files(), archived);
  }
}

TEST_P(RearrangingTest, AToolThatDiesHalfWayChangesNothingHere) {
  m_sandbox.write("half.sh", "mv \"$1\" \"$2\" && echo spoilt >\"$1.new\"; exit 7\n");
  m_sandbox.write("site.toml", "");
  inModel(0, {"checkout", "Control", "Brewing/Grinder.vcmp"});
  for (const char* name : {"Rename", "RenameDirectory", "MoveDirectory"}) {
    const bool isFile = std::string(name) == "Rename";
    inModel(0, {"property", "set", "--user", std::string(GetParam()) + "." + name,
                "sh \"" + m_sandbox.path("half.sh") + "\" " +
                    (isFile ? "\"$oldName\" \"$newName\"" : "\"$olddir\" \"$newdir\"")});
  }
  const auto before = onDisk();
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"rename", "Brewing/Grinder.vcmp", "Mill"},
        {"move", "Brewing/Grinder.vcmp", "Control"},
        {"rename", "Control", "Regulation"},
        {"move", "Milk", "Control"}}) {
    const std::string told = inModel(3, command).err;
    EXPECT_THAT(told, HasSubstr("The model and the disk are as before. The archive holds "));
    auto after = onDisk();
    std::erase_if(after, [](const auto& file) { return file.first.ends_with(".new"); });
    EXPECT_EQ(after, before) << command[0] << " " << command[1];
  }
}

TEST_P(RearrangingTest, RecursiveFormsTakeWhatIsInPackages) {
  inModel(0, {"checkout", "-r", "Brewing"});
  for (const auto& [name, state] : onDisk()) {
    EXPECT_EQ(state.isWritable, name.starts_with("Brewing/")) << name;
  }
  const std::string pump = "Brewing/Water Circuit/Pump.vcmp";
  m_sandbox.write("model/" + pump, m_sandbox.read("model/" + pump) + " ");
  inModel(0, {"checkin", "-r", "Brewing/Water Circuit", "-m", "pumps more"});
  EXPECT_THAT(m_tool->newestComment(pump), HasSubstr("pumps more"));
  EXPECT_EQ(m_tool->holder("Brewing/Water Circuit/Tank.vcmp"), "") << "unchanged, but given back";
  EXPECT_EQ(m_tool->newestText(pump), m_sandbox.read("model/" + pump));
  inModel(0, {"undo", "-r", "Brewing"});
  for (const auto& [name, state] : onDisk()) EXPECT_FALSE(state.isWritable) << name;
  EXPECT_EQ(m_tool->holder("Brewing/Grinder.vcmp"), "");

  m_sandbox.write("model/New/New.vpkg", m_sandbox.read("model/Milk/Milk.vpkg"));
  m_sandbox.write("model/New/deep/Other.vcmp", m_sandbox.read("model/Brewing/Grinder.vcmp"));
  inModel(0, {"add", "-r", "New", "-m", "two more"});
  EXPECT_EQ(m_tool->files().count("New/deep/Other.vcmp"), 1U);
  EXPECT_EQ(inModel(0, {"add", "-r", "New"}).out, "") << "nothing is left to add";
  expectAgreement();
}

INSTANTIATE_TEST_SUITE_P(Packs, RearrangingTest,
                         testing::Values("Subversion", "RCS", "CVS", "Git", "Mercurial"),
                         [](const auto& row) { return std::string(row.param); });

/// Batches are the Subversion pack's.
class BatchTest : public RearrangingTest {};

TEST_P(BatchTest, OneCommitDoesAllAndABlockedUnitFailsAlone) {
  inModel(0, {"checkout", "-r", "Brewing"});
  const std::string pump = "Brewing/Water Circuit/Pump.vcmp";
  for (const char* file : {"Brewing/Grinder.vcmp", "Brewing/Drip Tray.vcmp"}) {
    m_sandbox.write(std::string("model/") + file,
                    m_sandbox.read(std::string("model/") + file) + " ");
  }
  m_sandbox.write("model/" + pump, m_sandbox.read("model/" + pump) + " ");
  // Somebody takes the lock of one of them away.
  m_sandbox.shell("svn unlock --force \"file://" + m_tool->archive() + "/" + pump + "\" && " +
                  "svn lock --force \"file://" + m_tool->archive() + "/" + pump + "\"");
  const Ended ended = inModel(1, {"checkin", "-r", "Brewing", "-m", "together"});
  EXPECT_THAT(ended.err, HasSubstr(pump));
  EXPECT_THAT(m_tool->newestComment("Brewing/Grinder.vcmp"), HasSubstr("together"));
  EXPECT_TRUE(m_sandbox.isWritable("model/" + pump)) << "its changes are kept";
  EXPECT_FALSE(m_sandbox.isWritable("model/Brewing/Bean Hopper.vcmp"));
}

INSTANTIATE_TEST_SUITE_P(Packs, BatchTest, testing::Values("Subversion"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace veldra::live
