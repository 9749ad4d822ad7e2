#include "cm/ui/logic/compare/UnitComparison.h"

#include <regex>

#include "cm/host/IPN.h"
#include "cm/ui/logic/compare/ComparedVersions.h"
#include "tests/support/HostTest.h"
#include "tests/support/RecordingBackEnd.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;

/// A window in which one unit is selected and the version is filled in.
class OneUnitView : public CommandView {
 public:
  UnitList selected;
  std::optional<CommandOptions> answer = CommandOptions{};
  std::function<void()> whileAsking;
  int asked = 0;

  std::size_t GetSelectedCount() override { return selected.size(); }
  UnitList CmSelectedItems() override { return selected; }
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override {
    EXPECT_EQ(presets.window, OptionWindow::Compare);
    ++asked;
    if (whileAsking) whileAsking();
    return answer;
  }
  void commandStarts(const CommandRow&) override {}
  void commandEnds() override {}
  void DoAfterOpRefresh() override {}
  void dropGoneUnits() override {}
};

class UnitComparisonTest : public HostTest {
 protected:
  UnitComparisonTest() {
    m_host.files.makeDirectory("/tmp");
    m_view.selected = {&m_unit};
    set(IPN::CMFetch, "fetch $UnitPath to \"$targetDir\" ($label ? at $label :)");
    fetchWrites("archived");
  }

  bool compare() { return UnitComparison(m_view).OnVddiff(); }

  /// The tool's fetch brings this to where the command says.
  void fetchWrites(const std::string& content) {
    m_host.scriptedProcesses.answer(
        "fetch", Reply{.effect = [this, content] {
          const std::string& command = m_host.scriptedProcesses.runs.back().command;
          const std::size_t from = command.find('"') + 1;
          const bool hasTarget = from != 0;
          m_host.files.write(
              hasTarget ? command.substr(from, command.find('"', from) - from) : "/plan/A.vcl",
              content);
        }});
  }
  std::string started() const {
    const Lines& commands = m_host.scriptedProcesses.detached;
    return commands.size() == 1 ? commands.front() : "";
  }
  std::string contentOf(const std::string& file) {
    const MemoryFiles::File* const found = m_host.files.find(file);
    return found != nullptr ? found->content : "(missing)";
  }
  /// The numbers of the messages that were shown.
  Lines told() const {
    Lines numbers;
    for (const auto& one : m_host.memoryMessages.asked) numbers.push_back(one.text.substr(0, 5));
    return numbers;
  }
  /// The file of that name on a side.
  std::string onSide(char side, const std::string& name) {
    for (const auto& [path, file] : m_host.files.all()) {
      const std::string end = std::string("_") + side + '/' + name;
      if (path.starts_with("/tmp/_tmp") && path.ends_with(end)) return file.content;
    }
    return "(missing)";
  }

  OneUnitView m_view;
  MemoryPackage& m_package = m_model.addPackage("P/P.vpk");
  MemoryUnit& m_unit = m_model.addUnit("A.vcl");
};

TEST_F(UnitComparisonTest, WritesBothSidesAndStartsTheTool) {
  m_view.answer->label = "two words";
  EXPECT_TRUE(compare());
  EXPECT_EQ(onSide('1', "A.vcl"), "content of A.vcl");
  EXPECT_EQ(onSide('2', "A.vcl"), "archived");
  EXPECT_EQ(contentOf("/plan/A.vcl"), "content of A.vcl");
  const std::string side = "/tmp/_tmp\\d+_\\d+_\\d+_\\d+_\\d+_";
  const std::regex command("Tandel\\.exe \"" + side + "1/A\\.vcl\" \"" + side +
                           "2/A\\.vcl\" -fromVeldra -mergeBack -origId Plant_7_of_9 -cm1  -cm2 ");
  EXPECT_TRUE(std::regex_match(started(), command)) << started();
  EXPECT_THAT(m_host.scriptedProcesses.commands().back(), HasSubstr("at \"two words\""));
  EXPECT_THAT(m_host.journal.only({"reload"}), IsEmpty());
}

TEST_F(UnitComparisonTest, ATreeIsComparedByItsDirectories) {
  MemoryUnit& below = m_model.addUnit("P/Deep/B.vcl");
  MemoryUnit& stub = m_model.addUnit("P/S.vcl");
  stub.record.flags |= UnitFlag::Stub;
  m_package.record.aggregates = {&below, &stub};
  m_view.selected = {&m_package};
  m_view.answer->withDescendants = true;
  EXPECT_TRUE(compare());
  EXPECT_EQ(onSide('1', "P.vpk"), "content of P.vpk");
  EXPECT_EQ(onSide('1', "Deep/B.vcl"), "content of B.vcl");
  EXPECT_EQ(onSide('2', "Deep/B.vcl"), "archived");
  EXPECT_EQ(onSide('1', "S.vcl"), "(missing)") << "its content is not loaded";
  EXPECT_THAT(started(), MatchesRegex(".*_1\" \".*_2\" -fromVeldra -recursive -mergeBack -origId "
                                      "Plant_7_of_9 -cm2 "));
}

TEST_F(UnitComparisonTest, ATemplateWithoutTargetNeverTouchesTheWorkingFile) {
  set(IPN::CMFetch, "fetch $UnitPath");
  m_host.files.write("/plan/A.vcl", "with my changes", true);
  EXPECT_TRUE(compare());
  EXPECT_EQ(onSide('2', "A.vcl"), "archived");
  EXPECT_EQ(contentOf("/plan/A.vcl"), "with my changes");
  m_host.scriptedProcesses.answer("fetch", Reply{.errors = "no", .code = 1});
  EXPECT_FALSE(compare());
  EXPECT_EQ(contentOf("/plan/A.vcl"), "with my changes");
  EXPECT_EQ(contentOf("/plan/A.vcl_temp"), "(missing)");
}

TEST_F(UnitComparisonTest, RefusesWhatCannotBeCompared) {
  MemoryEmbeddedFile& file = m_model.addEmbeddedFile("read.txt");
  MemoryUnit& stub = m_model.addUnit("S.vcl");
  stub.record.flags |= UnitFlag::Stub;
  const struct {
    UnitList selected;
    const char* number;
    int flags;
  } rows[] = {
      {{}, "60401", MessageBox::IconWarning},
      {{&m_unit, &m_package}, "60401", MessageBox::IconWarning},
      {{&stub}, "60652", MessageBox::IconWarning},
      {{&file}, "60653", MessageBox::IconInformation},
  };
  for (const auto& row : rows) {
    m_host.memoryMessages.asked.clear();
    m_view.selected = row.selected;
    EXPECT_FALSE(compare());
    EXPECT_THAT(told(), ElementsAre(row.number));
    EXPECT_EQ(m_host.memoryMessages.asked.front().flags, row.flags) << row.number;
  }
  EXPECT_EQ(m_view.asked, 0);
}

TEST_F(UnitComparisonTest, WhatAnotherComparisonFetchedIsNeverTakenForThisOnes) {
  EXPECT_TRUE(compare());
  m_host.scriptedProcesses.answer("fetch", Reply{});
  EXPECT_FALSE(compare()) << "within the same second both have the same directories";
  EXPECT_THAT(m_host.scriptedProcesses.detached, SizeIs(1));
}

TEST_F(UnitComparisonTest, EveryFailureIsToldOnceAndStartsNothing) {
  const struct {
    const char* what;
    std::function<void()> given;
    Lines told;
  } rows[] = {
      {"the user gives up", [this] { m_view.answer.reset(); }, {}},
      {"no tool", [this] { set("CMTool", "none", IPN::General); }, {"46554"}},
      {"no room", [this] { m_host.memoryEnvironment.diskFull = true; }, {"60654"}},
      {"the unit cannot be written", [this] { m_host.files.remove("/plan/A.vcl"); }, {"60655"}},
      {"nothing fetched", [this] { m_host.scriptedProcesses.answer("fetch", Reply{}); }, {"60472"}},
      {"an empty version", [this] { fetchWrites(""); }, {"60650"}},
      {"no compare tool", [this] { m_host.scriptedProcesses.detachedFail = true; }, {"60651"}},
      {"the unit dies meanwhile",
       [this] { m_view.whileAsking = [this] { m_model.destroy(&m_unit); }; },
       {"60402"}},
  };
  for (const auto& row : rows) {
    m_host.memoryMessages.asked.clear();
    m_host.memoryEnvironment.diskFull = false;
    m_host.scriptedProcesses.detachedFail = false;
    m_host.files.write("/plan/A.vcl", "content of A.vcl");
    m_view.answer = CommandOptions{};
    set("CMTool", Tool, IPN::General);
    fetchWrites("archived");
    row.given();
    EXPECT_FALSE(compare()) << row.what;
    EXPECT_EQ(told(), row.told) << row.what;
  }
  EXPECT_THAT(m_host.scriptedProcesses.detached, IsEmpty());
}

TEST_F(UnitComparisonTest, AProviderFetchesBesideTheWorkingFileAndKnowsNoLabels) {
  RecordedBackEnds backEnds;
  useProvider("Any");
  DiagnosticList diagnostics;
  m_host.files.makeDirectory("/tmp/side");
  EXPECT_FALSE(fetchVersionInto(m_unit, "", "/tmp/side", diagnostics));
  EXPECT_EQ(backEnds.calls, Lines{"provider.fetchForDiff"});
}

}  // namespace
}  // namespace veldra::test
