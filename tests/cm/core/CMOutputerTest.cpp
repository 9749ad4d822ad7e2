#include "cm/core/CMOutputer.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMCoCiDisplayStatus.h"
#include "cm/core/CMFacade.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Shown = MemoryMessages::Shown;

class CMOutputerTest : public HostTest {};

TEST_F(CMOutputerTest, TextGetsAnEmptyLineBeforeAndALineEndAfter) {
  CMOutputer::writeToCMOutputWnd("");
  EXPECT_THAT(m_host.journal.lines(), IsEmpty());
  CMOutputer::writeToCMOutputWnd("words");
  EXPECT_EQ(window(), "\nwords\n");
  EXPECT_THAT(m_host.journal.lines(), ElementsAre("output-follows 1"));
}

TEST_F(CMOutputerTest, MainStreamIsTheWindowAndTheFacadeShowsTheSameSlot) {
  EXPECT_EQ(getMainCMOutputer()(), &m_host.manager.window);
  EXPECT_EQ(&CMFacade::outStream(), &getMainCMOutputer()());
  MemoryHost withoutWindow;
  withoutWindow.manager.hasStream = false;
  installHost(&withoutWindow);
  EXPECT_EQ(getMainCMOutputer()(), nullptr);
  installHost(&m_host);
}

TEST_F(CMOutputerTest, AWindowThatClosesIsNotWrittenToAnyMore) {
  EXPECT_EQ(getMainCMOutputer()(), &m_host.manager.window);
  m_host.manager.hasStream = false;
  EXPECT_EQ(getMainCMOutputer()(), nullptr);
  m_host.manager.hasStream = true;
  EXPECT_EQ(getMainCMOutputer()(), &m_host.manager.window);
}

TEST_F(CMOutputerTest, LoadingErrorsGoWhereTheSettingSays) {
  struct Row {
    const char* setting;
    bool inWindow;
    bool inBox;
  };
  for (const Row& row : std::vector<Row>{{"output window", true, false},
                                         {"Message Box", false, true},
                                         {"both", true, true},
                                         {"None", false, false},
                                         {"", false, false}}) {
    SCOPED_TRACE(row.setting);
    m_host.manager.window.str("");
    m_host.memoryMessages.asked.clear();
    m_host.memoryMessages.notified.clear();
    set("ReportLoadingError", row.setting);
    CMOutputer::reportLoadingErrror("lost");
    EXPECT_EQ(window(), row.inWindow ? "\nERROR : lost\n" : "");
    EXPECT_EQ(m_host.memoryMessages.asked,
              row.inBox ? std::vector<Shown>({{"lost", MessageBox::IconError, ""}})
                        : std::vector<Shown>());
    CMOutputer::reportLoadingErrror("");
    EXPECT_THAT(m_host.memoryMessages.asked, SizeIs(row.inBox ? 1 : 0));
  }
}

TEST_F(CMOutputerTest, ADisabledWindowHandsOverToItsPopUp) {
  struct Window : IWindow {
    bool isEnabled() const override { return enabled; }
    IWindow* lastActivePopup() override { return popup; }
    bool enabled = true;
    IWindow* popup = nullptr;
  } main, popup;
  main.popup = &popup;
  EXPECT_EQ(CMOutputer::getTopMostWindow(&main), &main);
  main.enabled = false;
  EXPECT_EQ(CMOutputer::getTopMostWindow(&main), &popup);
  EXPECT_EQ(CMOutputer::getTopMostWindow(nullptr), nullptr);
}

TEST_F(CMOutputerTest, FailedUnitsAreShownInOneMessage) {
  MemoryUnit& engine = m_model.addUnit("Engine.vcl");
  const CMArchiveItem item("src/Pump.vcl", "1.1", CMArchiveItem::ReadOnly, "", "");
  const DiagnosticList diagnostics{{1, "fine", nullptr},
                                   {0, "locked by bob", &engine},
                                   {0, "no tool", nullptr},
                                   {0, "gone", item}};
  CMCoCiDisplayStatus(diagnostics, "Check in:").displayStatus();
  EXPECT_THAT(m_host.memoryMessages.asked,
              ElementsAre(Shown{"Check in:\nClass 'Engine': locked by bob\nno tool\n"
                                "Class 'Pump': gone\n",
                                MessageBox::IconError, ""}));
}

TEST_F(CMOutputerTest, SuccessIsNotShown) {
  const DiagnosticList diagnostics{{1, "fine", nullptr}};
  CMCoCiDisplayStatus(diagnostics, "Check in:").displayStatus();
  EXPECT_THAT(m_host.memoryMessages.asked, IsEmpty());
}

}  // namespace
}  // namespace veldra::test
