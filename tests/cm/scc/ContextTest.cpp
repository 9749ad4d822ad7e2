#include "cm/host/IPN.h"
#include "cm/scc/PDLL.h"
#include "cm/scc/ProviderState.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/scc/SCCFacade.h"
#include "cm/templates/CMProperty.h"
#include "tests/cm/scc/ProviderTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ContextTest : public ProviderTest {
 protected:
  int associate() { return CMFacade::ConnectToArchive(m_units, m_arguments, m_diagnostics); }
  int getContext(IUnit* unit = nullptr) {
    return SCCConnectToCMRepository().getSccContext(m_context, unit);
  }
  std::size_t contexts() const { return CMProperty::getPvContextStructList().size(); }
  /// Sets a project up as if it had just been opened.
  void openAnew() {
    forget();
    moduleState().backEnd = {};
    CMProperty::setIsLoaded(false);
    EXPECT_EQ(CMFacade::doSetUpSCC(), 1);
  }

  pvContextStruct* m_context = nullptr;
};

TEST_F(ContextTest, TheRegistryNamesTheLibrary) {
  struct Case {
    const char* format;
    const char* subkey;
  };
  for (const Case& c : std::vector<Case>{{"Software\\A", "Software\\A"},
                                         {"Software\\%s\\B", "Software\\SCCServerName\\B"},
                                         {"%s%s", "SCCServerName%s"},
                                         {"50%%n%x%n%1$s\\%s", "50%%n%x%n%1$s\\SCCServerName"}}) {
    SCOPED_TRACE(c.format);
    m_host.memoryRegistry = {};
    m_host.memoryRegistry.write(Key, "ProviderRegKey", c.format);
    m_host.memoryRegistry.write(c.subkey, "SccServerPath", VELDRA_RECORDING_PROVIDER);
    openAnew();
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_TRUE(CMProperty::getDLLokay());
    EXPECT_EQ(CMProperty::getSCCProviderDLL(), VELDRA_RECORDING_PROVIDER);
  }
}

TEST_F(ContextTest, AProviderThatIsNotFoundIsReportedAndStaysSelected) {
  const std::string path = "/lib/gone.so";
  for (int missing = 0; missing < 3; ++missing) {
    SCOPED_TRACE(missing);
    m_host.memoryRegistry = {};
    if (missing > 0) m_host.memoryRegistry.write(Key, "ProviderRegKey", "Software\\A");
    if (missing > 1) m_host.memoryRegistry.write("Software\\A", "SccServerPath", path);
    openAnew();
    EXPECT_THAT(shown(), ElementsAre("46563: %1 %2"));
    EXPECT_FALSE(CMProperty::getDLLokay());
    EXPECT_EQ(CMProperty::getUseSCCtool(), 1);
  }
}

TEST_F(ContextTest, AKnownProjectIsOpenedWithoutAQuestion) {
  set("EnableSCCCancel", "True", IPN::SCC);
  EXPECT_EQ(getContext(), 1);
  EXPECT_THAT(calls(), ElementsAre("SccInitialize Veldra", "SccSetOption 3 0",
                                   "SccOpenProject '''Proj''/plan''Aux'''silent0"));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Invoking LoadDll", "Invoking SccInitialize",
                          "Scc dll returned 0 from SccInitialize", "Invoking SccSetOption",
                          "Invoking SccOpenProject", "Scc dll returned 0 from SccOpenProject"));
  EXPECT_EQ(CMProperty::getSCCToolName(), "Recorder");
  forget();
  // Names that differ in case only are one project.
  set("ProjName", "pROJ", IPN::SCC);
  pvContextStruct* const first = m_context;
  EXPECT_EQ(getContext(), 1);
  EXPECT_EQ(m_context, first);
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(ContextTest, AUnitMayHaveAnArchiveOfItsOwn) {
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  unit.record.sccProject = "Own";
  EXPECT_EQ(getContext(), 1);
  EXPECT_EQ(getContext(&unit), 1);
  EXPECT_EQ(m_context->getpvContextName(), "Own");
  EXPECT_EQ(contexts(), 2U);
}

TEST_F(ContextTest, WithoutAnArchiveThereIsNoContext) {
  unset("ProjName", IPN::SCC);
  EXPECT_EQ(getContext(), 0);
  EXPECT_THAT(shown(), ElementsAre("46547: %1 %2"));
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(ContextTest, AnOpeningThatFailsLeavesNoRecord) {
  for (const char* entryPoint : {"SccInitialize", "SccOpenProject", "SccGetProjPath"}) {
    SCOPED_TRACE(entryPoint);
    forget();
    m_provider->results = {{entryPoint, -8}};
    const bool isChoice = std::string(entryPoint) == "SccGetProjPath";
    if (isChoice) set("ProjName", "", IPN::SCC);
    EXPECT_EQ(isChoice ? associate() : getContext(), 0);
    EXPECT_THAT(shown(), ElementsAre("48318: %1 %248328: %1 %248351: %1 %2"));
    EXPECT_EQ(contexts(), 0U);
    EXPECT_EQ(calls().back().find(entryPoint), 0U);
  }
}

TEST_F(ContextTest, ANewAssociationIsChosenAndStored) {
  unset("ProjName", IPN::SCC);
  unset("AuxProjPath", IPN::SCC);
  EXPECT_EQ(associate(), 1);
  EXPECT_THAT(calls(), ElementsAre("SccInitialize Veldra", "SccGetProjPath '''''/plan'''0 1",
                                   "SccOpenProject '''Chosen''/plan''aux'''silent0"));
  EXPECT_THAT(traces("Scc dll returned"), IsEmpty());
  EXPECT_EQ(get("ProjName", IPN::SCC), "Chosen");
  EXPECT_EQ(get("AuxProjPath", IPN::SCC), "aux");
  EXPECT_EQ(m_project.record.sccProject, "Chosen");
  EXPECT_THAT(shown(), ElementsAre("46566: %1 %2"));
  EXPECT_TRUE(CMProperty::getIsConnected());
}

TEST_F(ContextTest, AProviderThatNamesNoProjectStandsForItItself) {
  unset("ProjName", IPN::SCC);
  m_provider->project = m_provider->auxPath = "";
  m_provider->name = "VAULTRIX";
  EXPECT_EQ(associate(), 1);
  EXPECT_EQ(get("ProjName", IPN::SCC), "VAULTRIX");
  EXPECT_EQ(m_project.record.sccAuxPath, "VAULTRIX");
}

TEST_F(ContextTest, AnAssociatedModelIsConnectedUnlessAnotherProjectIsWanted) {
  m_host.memoryMessages.answer = MessageBox::AnswerNo;
  EXPECT_EQ(associate(), 1);
  EXPECT_THAT(calls(), SizeIs(2));
  ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
  EXPECT_EQ(m_host.memoryMessages.asked[0].flags, 0x4 | 0x20 | 0x100);
  EXPECT_EQ(associate(), 1);
  EXPECT_THAT(calls(), SizeIs(2)) << "the context is open already";
  forget();
  m_host.memoryMessages.answer = MessageBox::AnswerYes;
  EXPECT_EQ(associate(), 1);
  EXPECT_THAT(calls(), ElementsAre("SccCloseProject", "SccUninitialize", "SccInitialize Veldra",
                                   "SccGetProjPath '''Proj''/plan''Aux'0 1",
                                   "SccOpenProject '''Chosen''/plan''aux'''silent0"));
}

TEST_F(ContextTest, AnotherAssociationTakesTheLastRecordWhicheverWasClosed) {
  m_provider->capabilities = scc::SCC_CAP_REENTRANT;
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  unit.record.sccProject = "Later";
  getContext();
  getContext(&unit);
  m_host.memoryMessages.answer = MessageBox::AnswerYes;
  EXPECT_EQ(associate(), 1);
  EXPECT_EQ(CMProperty::findPvStructByContextName("Later"), nullptr);
  EXPECT_EQ(CMProperty::findPvStructByContextName("Proj"), nullptr);
  EXPECT_EQ(CMProperty::findPvStructByContextName(""), nullptr) << "an empty record stays behind";
  EXPECT_EQ(contexts(), 2U);
}

TEST_F(ContextTest, AProviderWithOneContextLosesThoseThatAreOpen) {
  for (const unsigned capabilities : {0U, unsigned{scc::SCC_CAP_REENTRANT}}) {
    SCOPED_TRACE(capabilities);
    m_provider->capabilities = capabilities;
    set("ProjName", "Proj", IPN::SCC);
    m_project.record.sccProject = "";
    getContext();
    set("ProjName", "", IPN::SCC);
    forget();
    EXPECT_EQ(associate(), 1);
    EXPECT_THAT(calls("SccUninitialize"), SizeIs(capabilities == 0 ? 1 : 0));
    EXPECT_EQ(contexts(), capabilities == 0 ? 1U : 3U);
  }
}

TEST_F(ContextTest, SettingUpTwiceClosesInsteadOfLoading) {
  EXPECT_EQ(CMFacade::doSetUpSCC(), 1);
  EXPECT_THAT(calls(), IsEmpty());
  EXPECT_EQ(CMFacade::doSetUpSCC(), 1);
  EXPECT_EQ(CMFacade::doCloseProjectSCC(), 1);
  EXPECT_THAT(calls(), ElementsAre("SccCloseProject", "SccUninitialize"));
}

TEST(PDLLTest, CountsItsUsersAndForgetsThePathWithTheLast) {
  MemoryHost host;
  host.memoryLibraries.libraries["/lib/a.so"] = {};
  installHost(&host);
  {
    PDLL library;
    EXPECT_FALSE(library.load()) << "no path";
    library.release();
    EXPECT_TRUE(library.setPath("/lib/a.so"));
    EXPECT_TRUE(library.load());
    EXPECT_FALSE(library.load()) << "loaded already";
    EXPECT_FALSE(library.setPath("/lib/b.so"));
    library.release();
    EXPECT_TRUE(library.isLoaded());
    library.release();
    EXPECT_FALSE(library.isLoaded());
    library.release();
    EXPECT_FALSE(library.load()) << "the path went with the library";
  }
  EXPECT_EQ(*host.memoryLibraries.loaded, 0);
  installHost(nullptr);
}

}  // namespace
}  // namespace veldra::test
