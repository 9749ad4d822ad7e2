#include "cm/scc/SccQuery.h"

#include "cm/core/CMStatus.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/host/IPN.h"
#include "cm/scc/SCCPopListFunc.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/scc/pvContextStruct.h"
#include "cm/templates/CMProperty.h"
#include "tests/cm/scc/ProviderTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SccQueryTest : public ProviderTest {
 protected:
  SccQueryTest() {
    connect();
    m_context = CMProperty::getPvContextStructList().front()->getpvContextPtr();
    m_units = {&m_model.addUnit("A.vcl"), nullptr, &m_model.addUnit("B.vcl")};
  }
  void* m_context;
};

TEST_F(SccQueryTest, ManyUnitsInOneCallOrOneByOne) {
  m_provider->status["/plan/B.vcl"] = 5;
  SccQuery::queryAndSetStatus(m_units, m_context);
  EXPECT_THAT(calls(), ElementsAre("SccQueryInfo /plan/A.vcl /plan/B.vcl"));
  EXPECT_THAT(
      m_host.traceLog.texts(),
      ElementsAre("Invoking SccQueryInfo on Scc dll for the following files:\n\t"
                  "/plan/A.vcl\n",
                  "Scc dll returned 0 from SccQueryInfo", "Status of A is 1", "Status of B is 5"));
  EXPECT_EQ(m_units[2]->getCMState(), 5);
  set("QuerySCCStatusOneByOne", "True", IPN::SCC);
  forget();
  SccQuery::queryAndSetStatus(m_units, m_context);
  EXPECT_THAT(calls(), ElementsAre("SccQueryInfo /plan/A.vcl", "SccQueryInfo /plan/B.vcl"));
}

TEST_F(SccQueryTest, NothingIsAskedInVain) {
  std::int32_t status = 7;
  EXPECT_EQ(SccQuery::query({"a"}, &status, nullptr), -1);
  SccQuery::queryAndSetStatus(UnitList{nullptr}, m_context);
  m_project.showsStatus = false;
  SccQuery::queryAndSetStatus(m_units, m_context);
  SccQuery::queryAndSetStatusOneByOne(m_units, m_context);
  EXPECT_THAT(calls(), IsEmpty());
  EXPECT_THAT(m_host.traceLog.texts(), IsEmpty());
  m_project.showsStatus = true;
  m_provider->results["SccQueryInfo"] = -8;
  SccQuery::queryAndSetStatus(m_units, m_context);
  SccQuery::queryAndSetStatusOneByOne(m_units, m_context);
  EXPECT_EQ(m_units[0]->getCMState(), -1) << "a failed query changes nothing";
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(SccQueryTest, ItemsStandForTheirUnitsAndWhatLiesInThem) {
  MemoryPackage& package = m_model.addPackage("Brewing/Brewing.vpk");
  package.record.aggregates = {&m_model.addUnit("Boiler.vcl")};
  m_model.fullPathRepFiles = true;
  addItem("Brewing/Brewing.vpk");
  addItem("Gone.vcl");
  SccQuery::queryAndSetStatus(m_items, m_context, true);
  EXPECT_THAT(calls(), ElementsAre("SccQueryInfo /plan/Brewing/Brewing.vpk /plan/Boiler.vcl"));
}

TEST_F(SccQueryTest, CodesBecomeMessages) {
  struct Case {
    long code;
    const char* text;
    unsigned long kind;
  };
  const auto id = [](int number) { return std::to_string(number) + ": %1 %2"; };
  for (const Case& c : std::vector<Case>{{-1, "48318 48321 48351", 3},
                                         {-14, "48318 48334 48351", 3},
                                         {-15, "48335 48351", 3},
                                         {-29, "48318 48349 48351", 3},
                                         {-30, "48319 48351", 2},
                                         {0, "48319 48351", 2},
                                         {1, "48319 48358 48351", 2},
                                         {4, "48319 48355 48351", 2},
                                         {5, "48319 48351", 2},
                                         {7, "48319 48351", 2},
                                         {42, "48319 48351", 2}}) {
    std::string expected;
    for (const char* at = c.text; *at != '\0'; at += at[5] == ' ' ? 6 : 5) {
      expected += id(std::atoi(at));
    }
    const SCCTextOutProc::Message message = SCCTextOutProc::messageOf(c.code);
    EXPECT_EQ(message.text, expected) << c.code;
    EXPECT_EQ(message.kind, c.kind) << c.code;
  }
  EXPECT_EQ(SCCTextOutProc::InternalTextOutProc(-15, 1), 1);
  EXPECT_THAT(windowLines("48335"), SizeIs(1));
  for (const unsigned long kind : {1UL, 2UL, 3UL, 4UL})
    SCCTextOutProc::InternalTextOutProc("t", kind);
  EXPECT_THAT(m_host.memoryMessages.asked, ElementsAre(MemoryMessages::Shown{"t", 0x40, ""},
                                                       MemoryMessages::Shown{"t", 0x30, ""},
                                                       MemoryMessages::Shown{"t", 0x10, ""}));
}

TEST_F(SccQueryTest, OfFilesWithTheProjectsNameOnlyItsOwnIsListed) {
  struct Case {
    const char* file;
    bool isListed;
    bool isListedAmongAll;
  };
  for (const Case& c : std::vector<Case>{{"", false, false},
                                         {"/x/Engine.vcl", true, true},
                                         {"/x/Plant.vdy", true, true},
                                         {"c:\\x/y\\ Plant.vdy ", true, true},
                                         {"/x/plant.vdy", true, true},
                                         {"/x/Plant2.vdy", false, true},
                                         {"/Plant/Engine.vcl", false, true}}) {
    SCOPED_TRACE(c.file);
    unset("ShowAllFilesInArchive", IPN::SCC);
    EXPECT_EQ(SCCPopListFunc::isListed(c.file), c.isListed);
    set("ShowAllFilesInArchive", "True", IPN::SCC);
    EXPECT_EQ(SCCPopListFunc::isListed(c.file), c.isListedAmongAll);
  }
  std::string name = "/x/Engine.vcl";
  EXPECT_EQ(SCCPopListFunc::InternalPopListFunc(nullptr, 0, 1, name.data()), 1);
  EXPECT_THAT(CMProperty::getFileNamesList(), IsEmpty());
}

TEST_F(SccQueryTest, StatesHaveLabelsAndIcons) {
  struct Case {
    std::int32_t state;
    const char* controlled;
    const char* checkedOut;
    int icon;
  };
  MemoryUnit& unit = m_model.addUnit("C.vcl");
  m_project.showsStatus = false;
  for (const Case& c : std::vector<Case>{{-1, "49434", "", 6},
                                         {-3084, "", "", 1},
                                         {0, "49488", "", 1},
                                         {0x41, "49434", "", 6},
                                         {0x1007, "49494", "49762", 5},
                                         {0x1005, "49494", "49763", 4},
                                         {0x1, "49494", "49765", 2},
                                         {0x1001, "49494", "49764", 0}}) {
    SCOPED_TRACE(c.state);
    unit.setCMState(c.state);
    EXPECT_EQ(CMStatus::getControlled(&unit).substr(0, 5), c.controlled);
    EXPECT_EQ(CMStatus::getCheckedOut(&unit).substr(0, 5), c.checkedOut);
    EXPECT_EQ(CMStatus::getCMStatusImgIndex(&unit), c.icon);
    EXPECT_EQ(CMStatus::getIsInvalid(&unit), c.state == -1 ? 1 : 0);
    m_project.showsStatus = true;
    EXPECT_EQ(CMStatus::getCMStatusImgIndex(&unit), c.state == -1 ? 6 : 0);
    m_project.showsStatus = false;
  }
}

TEST_F(SccQueryTest, ARefreshAsksForAllUnitsInOneCallWhenItIsWanted) {
  struct Case {
    const char* setting;
    int answer;
    std::size_t queries;
    std::size_t questions;
  };
  m_model.addUnit("Out.vcl").record.excluded = true;
  m_model.addWorkspace("mine.vws");
  m_model.addEmbeddedFile("notes.txt").record.saveUnit = m_model.unitByFile("Out.vcl");
  for (const Case& c : std::vector<Case>{{"no", 6, 0, 0},
                                         {"", 6, 0, 0},
                                         {"YES", 7, 1, 0},
                                         {"ask user", 6, 1, 1},
                                         {"Ask User", 7, 0, 1}}) {
    SCOPED_TRACE(c.setting);
    forget();
    set("RefreshCMStatusAtProjectOpenup", c.setting, IPN::SCC);
    m_host.memoryMessages.answer = c.answer;
    static_cast<IBaseCMFacade&>(CMTraitFacade::instance()).RefreshCMStatus();
    EXPECT_THAT(calls(), SizeIs(c.queries));
    EXPECT_THAT(shown(), SizeIs(c.questions));
  }
  forget();
  set("RefreshCMStatusAtProjectOpenup", "Yes", IPN::SCC);
  CMTraitFacade::instance().RefreshCMStatus();
  EXPECT_THAT(calls(), ElementsAre("SccQueryInfo /plan/Plant.vdy /plan/A.vcl /plan/B.vcl"));
  forget();
  m_project.showsStatus = false;
  CMTraitFacade::instance().RefreshCMStatus();
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(SccQueryTest, AStatusTellsTheHolderWhereTheProviderDoes) {
  m_project.showsStatus = false;
  m_units = {m_units[0], m_units[2]};
  m_provider->status = {{"/plan/A.vcl", 0x1003}, {"/plan/B.vcl", 5}};
  m_provider->holders["/plan/B.vcl"] = "bob";
  std::vector<UnitStatus> status;
  EXPECT_EQ(CMTraitFacade::queryStatus(m_units, status), 1);
  ASSERT_THAT(status, SizeIs(2));
  EXPECT_EQ(status[0].holder, "ada") << "who else";
  EXPECT_EQ(status[1].holder, "bob");
  EXPECT_EQ(status[1].state, 5);
  EXPECT_EQ(m_units[1]->getCMState(), -1);
  m_provider->results["SccQueryInfo"] = -29;
  EXPECT_EQ(CMTraitFacade::queryStatus(m_units, status), 0);
  EXPECT_THAT(shown(), SizeIs(1));
}

}  // namespace
}  // namespace veldra::test
