#include "cm/host/IPN.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"
#include "tests/cm/scc/ProviderTest.h"

namespace veldra::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr int Mine = 0x1003;

/// Check-out, check-in, undo and get through the facade.
class UnitOperationsSccTest : public ProviderTest {
 protected:
  UnitOperationsSccTest() {
    m_units = {&m_a, &m_b};
    connect();
  }
  int checkOut() { return CMFacade::CheckOut(m_units, m_arguments, m_diagnostics); }
  int checkIn() { return CMFacade::CheckIn(m_units, m_arguments, m_diagnostics); }
  int undo() { return CMFacade::Uncheckout(m_units, m_arguments, m_diagnostics); }
  int fetch() { return CMFacade::Fetch(m_units, m_arguments, m_diagnostics); }
  Lines events() const {
    return m_host.journal.only({"save", "before", "reload", "mode", "header", "after"});
  }
  Lines ends() const {
    Lines lines;
    for (const MemoryProgress::End& end : m_host.memoryProgress.ended) {
      lines.push_back(end.unit + " " + std::to_string(static_cast<int>(end.end)));
    }
    return lines;
  }
  static std::string end(const char* file, UnitEnd how) {
    return file + (" " + std::to_string(static_cast<int>(how)));
  }

  MemoryUnit& m_a = m_model.addUnit("A.vcl");
  MemoryUnit& m_b = m_model.addUnit("B.vcl");
};

Lines queryLines(const std::string& file) {
  return {"Invoking SccQueryInfo on Scc dll for the following files:\n\t" + file + "\n",
          "Returned from SccQueryInfo on Scc dll", "Scc dll returned 0 from SccQueryInfo"};
}

TEST_F(UnitOperationsSccTest, CheckOutOneByOne) {
  m_units = {&m_a, &m_a};
  EXPECT_EQ(checkOut(), 0);
  EXPECT_THAT(calls(), ElementsAre("SccQueryInfo /plan/A.vcl", "SccCheckout /plan/A.vcl '' 0",
                                   "SccQueryInfo /plan/A.vcl"));
  EXPECT_THAT(events(), ElementsAre("before", "reload A.vcl", "after", "mode A.vcl"));
  const Lines query = queryLines("/plan/A.vcl");
  EXPECT_THAT(
      m_host.traceLog.texts(),
      ElementsAre("Getting SCC Context to perform check out", query[0], query[1], query[2],
                  "Invoking SccCheckout on Scc dll for the following files:\n\t"
                  "/plan/A.vcl\n",
                  "Returned from SccCheckout on Scc dll", "Scc dll returned 0 from SccCheckout",
                  "Performing ATM for the file /plan/A.vcl",
                  "Updating CM Mode for unit /plan/A.vcl",
                  "Updating CM Status for unit /plan/A.vcl", query[0], query[1], query[2]));
  ASSERT_THAT(m_units, SizeIs(1));
  EXPECT_EQ(m_units[0]->getCMState(), 1);
}

TEST_F(UnitOperationsSccTest, CheckOutAllAtOnceWhereTheNamePromisesTheOpposite) {
  set("UnrollLoops", "True", IPN::SCC);
  m_provider->capabilities = scc::SCC_CAP_COMMENTCHECKOUT;
  CMProperty::isSetSCC_CAP_COMMENTCHECKOUT(1);
  EXPECT_EQ(checkOut(), 0);
  EXPECT_THAT(calls("SccCheckout"), ElementsAre("SccCheckout /plan/A.vcl /plan/B.vcl 'why' 0"));
  EXPECT_THAT(traces("Getting"), SizeIs(1));
  EXPECT_THAT(events(), ElementsAre("before", "reload A.vcl", "reload B.vcl", "after", ::testing::_,
                                    ::testing::_));
}

TEST_F(UnitOperationsSccTest, CheckOutLeavesOutWhatIsOutAlreadyAndWhatMayNotBeOverwritten) {
  set("AskOnCheckoutReadWrite", "Yes", IPN::SCC);
  for (const char* atOnce : {"False", "True"}) {
    SCOPED_TRACE(atOnce);
    set("UnrollLoops", atOnce, IPN::SCC);
    m_provider->status["/plan/A.vcl"] = Mine;
    m_host.files.find("/plan/B.vcl")->writable = true;
    m_units = {m_model.unitByFile("A.vcl"), m_model.unitByFile("B.vcl")};
    forget();
    EXPECT_EQ(checkOut(), 0);
    EXPECT_THAT(calls("SccCheckout"), IsEmpty());
    EXPECT_THAT(windowLines("948: /plan/A.vcl"), SizeIs(1));
    EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, Contains("953: B.vcl /plan/B.vcl"));
    EXPECT_THAT(ends(), Contains(end("/plan/B.vcl", UnitEnd::Declined)));
    EXPECT_THAT(shown(), IsEmpty());
  }
  // Out somewhere else is not out here, and neither is an unknown status.
  for (const int status : {0x1001, 0x7, -1}) {
    m_provider->status["/plan/A.vcl"] = status;
    m_units = {m_model.unitByFile("A.vcl")};
    forget();
    checkOut();
    EXPECT_THAT(calls("SccCheckout"), SizeIs(1)) << status;
  }
}

TEST_F(UnitOperationsSccTest, AFailedCheckOutIsReportedAndReloadsNothing) {
  set("UnrollLoops", "True", IPN::SCC);
  m_provider->results["SccCheckout"] = scc::SCC_E_FILEOUTEXCLUSIVE;
  EXPECT_EQ(checkOut(), 0);
  EXPECT_THAT(shown(), ElementsAre(HasSubstr("48327"), HasSubstr("48312")));
  EXPECT_THAT(windowLines("/plan/A.vcl, /plan/B.vcl"), SizeIs(1));
  EXPECT_THAT(events(), Not(Contains("reload A.vcl")));
  EXPECT_THAT(ends(), ElementsAre(end("/plan/A.vcl", UnitEnd::ToolFailed),
                                  end("/plan/B.vcl", UnitEnd::ToolFailed)));
}

TEST_F(UnitOperationsSccTest, AUnitThatCannotBeLoadedLeavesTheList) {
  using Operation = int (*)(UnitList&, ArgumentList&, DiagnosticList&);
  set("ReportLoadingError", "Message Box", IPN::SCC);
  m_host.reloads.quickReload = ReloadScript::Outcome::Lose;
  for (const Operation operation :
       std::vector<Operation>{CMFacade::CheckOut, CMFacade::Uncheckout, CMFacade::Fetch}) {
    forget();
    m_units = {&m_a};
    EXPECT_EQ(operation(m_units, m_arguments, m_diagnostics), 0);
    EXPECT_THAT(shown(), Contains("47640: /plan/A.vcl"));
    EXPECT_THAT(ends(), ElementsAre(end("/plan/A.vcl", UnitEnd::NotReloaded)));
  }
}

TEST_F(UnitOperationsSccTest, WithoutAContextAnOperationBreaksOff) {
  unset("ProjName", IPN::SCC);
  EXPECT_EQ(checkOut() + fetch() + undo() + checkIn(), 0);
  EXPECT_THAT(calls(), IsEmpty());
  // The callback after reloads is promised not to come then.
  EXPECT_THAT(events(), ElementsAre("before", "before", "save", "before", "save"));
}

TEST_F(UnitOperationsSccTest, CheckInSortsItsUnitsIntoThreeGroups) {
  MemoryUnit& fresh = m_model.addUnit("C.vcl");
  MemoryUnit& strange = m_model.addUnit("D.vcl");
  m_units = {&m_a, &m_b, nullptr, &fresh, &strange};
  m_provider->status = {{"/plan/A.vcl", Mine}, {"/plan/C.vcl", 0}, {"/plan/D.vcl", Mine}};
  EXPECT_EQ(checkIn(), 0);
  EXPECT_THAT(calls("SccAdd"), IsEmpty());
  EXPECT_THAT(calls("SccCheckin"), ElementsAre("SccCheckin /plan/A.vcl /plan/D.vcl 'why' 0"));
  EXPECT_THAT(windowLines("955: /plan/B.vcl"), SizeIs(1));
  EXPECT_THAT(windowLines("954: /plan/C.vcl"), SizeIs(1));
  EXPECT_THAT(shown(), ElementsAre("50055: 49982: %1 %2 %2"));
  EXPECT_EQ(m_host.memoryMessages.asked[0].flags,
            MessageBox::IconInformation | MessageBox::YesNoCancel);
  EXPECT_THAT(traces("File Status is"), ElementsAre("File Status is 4099", "File Status is 1",
                                                    "File Status is 0", "File Status is 4099"));
  EXPECT_THAT(traces("Returned from SccCheckin"), IsEmpty());
  EXPECT_THAT(m_host.journal.only({"header"}), SizeIs(4));
  EXPECT_THAT(m_arguments, ElementsAre(&m_comment));
}

TEST_F(UnitOperationsSccTest, CheckInAddsNewUnitsWhereTheProjectAllowsIt) {
  set("AddNewUnitsToArchiveDuringCheckin", "True", IPN::SCC);
  m_provider->status = {{"/plan/A.vcl", 0}, {"/plan/B.vcl", 0}};
  EXPECT_EQ(checkIn(), 1);
  EXPECT_THAT(windowLines("966: /plan/A.vcl"), SizeIs(1));
  EXPECT_THAT(calls("SccCheckin"), IsEmpty());
  EXPECT_THAT(calls("SccAdd"), ElementsAre("SccAdd /plan/A.vcl /plan/B.vcl 'why' 0 0"));
  EXPECT_THAT(shown(), ElementsAre("60206: 2 %2"));
  forget();
  m_provider->status["/plan/B.vcl"] = Mine;
  EXPECT_EQ(checkIn(), 0);
  EXPECT_THAT(calls("SccAdd"), SizeIs(1));
  EXPECT_THAT(calls("SccCheckin"), SizeIs(1));
  EXPECT_THAT(shown(), ElementsAre(HasSubstr("49982"))) << "the note of the add is silenced";
}

TEST_F(UnitOperationsSccTest, AFailedCheckInPutsTheProjectFileBack) {
  for (const int code : {0, -9}) {
    SCOPED_TRACE(code);
    forget();
    m_units = {&m_project};
    m_provider->status["/plan/Plant.vdy"] = Mine;
    m_provider->results["SccCheckin"] = code;
    EXPECT_EQ(checkIn(), 0);
    EXPECT_THAT(m_host.journal.only({"handler-prepare"}),
                ElementsAre("handler-prepare 2 /plan/Plant.vdy"));
    EXPECT_THAT(m_host.journal.only({"handler-complete"}), SizeIs(code == 0 ? 1 : 0));
    EXPECT_THAT(shown(), ElementsAre(HasSubstr(code == 0 ? "49982" : "48329")));
  }
}

TEST_F(UnitOperationsSccTest, UndoRestoresFileByFile) {
  MemoryEmbeddedFile& notes = m_model.addEmbeddedFile("notes.txt");
  m_a.record.recordedFileName = "A.vcl";
  // Never followed its unit's name, and does not begin to.
  m_b.record.recordedFileName = "B.vcl";
  m_b.record.computedFileName = "Wheel.vcl";
  m_host.reloads.computedFileName = "Engine.vcl";
  m_units = {&m_a, &notes, &m_b};
  m_provider->results["SccUncheckout"] = 0;
  EXPECT_EQ(undo(), 0);
  EXPECT_THAT(calls("SccUncheckout"),
              ElementsAre("SccUncheckout /plan/A.vcl 0", "SccUncheckout /plan/notes.txt 0",
                          "SccUncheckout /plan/B.vcl 0"));
  EXPECT_THAT(m_host.journal.only({"save", "before", "reload", "rename", "after"}),
              ElementsAre("save", "before", "reload A.vcl", "rename A.vcl to Engine.vcl",
                          "reload B.vcl", "after"));
  EXPECT_THAT(traces("Updating CM Header"), SizeIs(2));
  EXPECT_THAT(traces("Updating CM Mode"), SizeIs(3));
  forget();
  m_provider->results["SccUncheckout"] = -4;
  EXPECT_EQ(undo(), 0);
  EXPECT_THAT(shown(), SizeIs(3)) << "one refusal does not stop the others";
}

TEST_F(UnitOperationsSccTest, UndoEndsAtAUnitThatIsNotOutWhereTheProjectWantsThat) {
  set("IgnoreUndoCheckoutForNotCheckedoutUnits", "True", IPN::SCC);
  m_units.push_back(&m_model.addUnit("C.vcl"));
  m_provider->status = {{"/plan/A.vcl", Mine}, {"/plan/C.vcl", Mine}};
  EXPECT_EQ(undo(), 0);
  EXPECT_THAT(calls("SccUncheckout"), ElementsAre("SccUncheckout /plan/A.vcl 0"));
  EXPECT_THAT(windowLines("967: /plan/B.vcl"), SizeIs(1));
  EXPECT_THAT(events(), Not(Contains("after")));
}

TEST_F(UnitOperationsSccTest, GetAsksBeforeItOverwritesAndQueriesAllTheSame) {
  set("AskOnCheckoutReadWrite", "Yes", IPN::SCC);
  set("SaveOnCheckOut", "True", IPN::SCC);
  m_host.files.find("/plan/A.vcl")->writable = true;
  m_units.push_back(&m_model.addEmbeddedFile("notes.txt"));
  EXPECT_EQ(fetch(), 0);
  EXPECT_THAT(calls(), ElementsAre("SccGet /plan/B.vcl 0", "SccGet /plan/notes.txt 0",
                                   "SccQueryInfo /plan/A.vcl /plan/B.vcl /plan/notes.txt"));
  EXPECT_THAT(events(), ElementsAre("save", "before", "reload B.vcl", "after"));
  EXPECT_THAT(traces("Updating CM Status"),
              ElementsAre("Updating CM Status for unit /plan/notes.txt"));
  EXPECT_THAT(traces("Status of"),
              ElementsAre("Status of A is 1", "Status of B is 1", "Status of notes is 1"));
  EXPECT_THAT(ends(), Contains(end("/plan/A.vcl", UnitEnd::Declined)));
}

TEST_F(UnitOperationsSccTest, AnEmptyListTouchesNothing) {
  m_units.clear();
  m_host.journal.clear();
  EXPECT_EQ(fetch() + checkOut() + undo(), 0);
  EXPECT_THAT(events(), IsEmpty());
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(UnitOperationsSccTest, TextsOfTheProviderGoToTheWindowWhereTheProjectWantsThem) {
  m_provider->text = "half done";
  EXPECT_EQ(checkOut(), 0);
  EXPECT_THAT(window(), IsEmpty());
  set("RedirectOutputToVeldra", "True", IPN::SCC);
  set("ProjName", "Other", IPN::SCC);
  m_units = {m_model.unitByFile("A.vcl")};
  EXPECT_EQ(checkOut(), 0);
  EXPECT_EQ(window(), "half done\n");
}

}  // namespace
}  // namespace veldra::test
