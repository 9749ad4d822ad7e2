#include <chrono>
#include <thread>

#include "cm/host/IPN.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"
#include "host/platform/FaultGuard.h"
#include "tests/cm/scc/ProviderTest.h"

namespace veldra::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A project whose archive project names the provider's fault.
class MisbehavingProviderTest : public ProviderTest {
 protected:
  using Operation = int (*)(UnitList&, ArgumentList&, DiagnosticList&);

  MisbehavingProviderTest() {
    m_host.guard = &m_guard;
    registerProvider(VELDRA_MISBEHAVING_PROVIDER);
    // The registry was looked at for the recording provider already: once per project.
    providerState().libraryPath = VELDRA_MISBEHAVING_PROVIDER;
    set("RedirectOutputToVeldra", "True", IPN::SCC);
    set("ReportLoadingError", "Output Window", IPN::SCC);
    m_host.reloads.quickReload = ReloadScript::Outcome::SameObject;
    m_units = {&m_model.addUnit("Engine.vcl"), &m_model.addUnit("Wheel.vcl")};
  }

  void misbehave(const char* fault) { set("ProjName", fault, IPN::SCC); }
  int fetch() { return CMFacade::Fetch(m_units, m_arguments, m_diagnostics); }

  host::FaultGuard m_guard;
};

TEST_F(MisbehavingProviderTest, ACrashEndsTheOperationAndTheProviderButNothingElse) {
  for (const char* fault : {"crash", "throw"}) {
    SCOPED_TRACE(fault);
    installHost(&m_host);  // A fresh module.
    useProvider();
    misbehave(fault);
    forget();
    const UnitList before = m_units;
    EXPECT_EQ(fetch(), 0);
    EXPECT_THAT(shown(), SizeIs(1));
    EXPECT_THAT(shown().front(), HasSubstr("60201: SccGet"));
    ASSERT_THAT(m_diagnostics, SizeIs(1));
    EXPECT_THAT(m_diagnostics.front().getMessage(), HasSubstr("SccGet"));
    EXPECT_EQ(m_units, before);
    EXPECT_THAT(m_host.journal.only({"reload", "mode", "header"}), IsEmpty());
    ASSERT_THAT(m_host.memoryProgress.ended, SizeIs(1));
    EXPECT_EQ(m_host.memoryProgress.ended[0].end, UnitEnd::ToolFailed);
    EXPECT_EQ(m_host.memoryProgress.openProviderCalls, 0);
    EXPECT_EQ(m_host.undo.open, 0);
    // Whatever it may have broken, it is not asked again.
    for (const Operation operation : {&CMFacade::CheckIn, &CMFacade::History}) {
      forget();
      EXPECT_EQ(operation(m_units, m_arguments, m_diagnostics), 0);
      EXPECT_THAT(shown(), ElementsAre(HasSubstr("60201: SccGet")));
    }
  }
}

TEST_F(MisbehavingProviderTest, ACrashWhileConnectingIsABrokenConnection) {
  misbehave("crash in open");
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(shown(), Contains(HasSubstr("46567")));
  EXPECT_THAT(providerState().contexts, IsEmpty());
}

TEST_F(MisbehavingProviderTest, AnUnloadDuringACallIsACrash) {
  misbehave("unload");
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(shown(), Contains(HasSubstr("60201: SccGet")));
  installHost(&m_host);  // Drops the module's state, with what it holds of the library.
  useProvider();
}

TEST_F(ProviderTest, ReleasingTheLibraryFromACallbackWaitsForTheCall) {
  MemoryUnit& unit = m_model.addUnit("Engine.vcl");
  m_units = {&unit};
  connect();
  SCCdll& dll = providerState().dll;
  m_provider->during = [&](const std::string& call) {
    if (call != "SccGet") return;
    dll.release();
    EXPECT_TRUE(dll.isLoaded()) << "the call that releases it still runs";
  };
  EXPECT_EQ(CMFacade::Fetch(m_units, m_arguments, m_diagnostics), 0);
  EXPECT_FALSE(dll.isLoaded());
  EXPECT_THAT(calls(), SizeIs(1)) << "what is gone reads as success";
}

TEST_F(MisbehavingProviderTest, UnknownCodesAreShownAndNothingIsReloaded) {
  misbehave("wrong codes");
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(shown(), AllOf(SizeIs(2), Each(HasSubstr("48319"))));
  EXPECT_THAT(m_host.journal.only({"reload"}), IsEmpty());
}

TEST_F(MisbehavingProviderTest, FullBuffersAreReadToTheirEndAndNoFurther) {
  misbehave("full buffers");
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(CMProperty::getSCCToolName(), std::string(scc::SCC_NAME_SIZE, 'x'));
  ASSERT_THAT(providerState().contexts, SizeIs(2)) << "a renamed project is found under its name";
  EXPECT_EQ(providerState().contexts[0]->getpvContextName(),
            std::string(scc::SCC_PRJPATH_SIZE, 'x'));
}

TEST_F(MisbehavingProviderTest, TextsOfOtherThreadsReachTheWindowOnTheCallersThread) {
  misbehave("another thread");
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(windowLines("from another thread"), SizeIs(200));
}

TEST_F(MisbehavingProviderTest, ATextThatIsNoneIsIgnored) {
  misbehave("null text");
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(MisbehavingProviderTest, WhatAHalfFilledStatusLeavesOutIsInvalid) {
  misbehave("half status");
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(m_units[0]->getCMState() + m_units[1]->getCMState(), scc::SCC_STATUS_CONTROLLED - 1);
}

TEST_F(MisbehavingProviderTest, NamesFromOutsideNeverLeaveTheProject) {
  misbehave("list");
  EXPECT_EQ(CMFacade::ListArchive(m_items, m_arguments, m_diagnostics), 1);
  ASSERT_EQ(m_items.size(), 1U);
  EXPECT_EQ((*m_items.begin())->getFileNameWithPath().size(), 69999U);
  delete *m_items.begin();
}

TEST_F(MisbehavingProviderTest, TheHostKnowsWhichCallHangs) {
  misbehave("hang");
  std::string error;
  const std::unique_ptr<ILibrary> library =
      m_realLibraries.load(VELDRA_MISBEHAVING_PROVIDER, error);
  std::thread rescuer;
  m_host.memoryProgress.onProviderCall = [&](const char* entryPoint) {
    if (std::string(entryPoint) != "SccGet" || rescuer.joinable()) return;
    // Only somebody else can see that the call does not come back.
    rescuer = std::thread([&] { library->find("releaseMisbehaving")(); });
  };
  EXPECT_EQ(fetch(), 0);
  ASSERT_TRUE(rescuer.joinable()) << "nobody was told of the call";
  rescuer.join();
  EXPECT_EQ(m_host.memoryProgress.openProviderCalls, 0);
}

TEST_F(MisbehavingProviderTest, AProviderWithoutEntryPointsReadsAsSuccessOrIsReported) {
  providerState().libraryPath = VELDRA_INCOMPLETE_PROVIDER;
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(CMFacade::CheckOut(m_units, m_arguments, m_diagnostics), 0);
  EXPECT_EQ(CMFacade::CheckIn(m_units, m_arguments, m_diagnostics), 1);
  EXPECT_EQ(CMFacade::Uncheckout(m_units, m_arguments, m_diagnostics), 0);
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_THAT(m_diagnostics, IsEmpty());
  for (const Operation operation :
       {&CMFacade::History, &CMFacade::Properties, &CMFacade::AddMember, &CMFacade::DeleteMember}) {
    m_diagnostics.clear();
    EXPECT_EQ(operation(m_units, m_arguments, m_diagnostics), 0);
    ASSERT_THAT(m_diagnostics, SizeIs(1));
    EXPECT_THAT(m_diagnostics.front().getMessage(), HasSubstr("60203: "));
  }
}

TEST_F(MisbehavingProviderTest, ALibraryThatCannotBeLoadedIsReportedOnce) {
  m_host.loader = &m_host.memoryLibraries;
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(shown(), SizeIs(1));
  EXPECT_THAT(shown().front(), HasSubstr("60202"));
  EXPECT_EQ(m_host.memoryLibraries.loads, 1);
}

}  // namespace
}  // namespace veldra::test
