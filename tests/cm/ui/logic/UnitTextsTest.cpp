#include "cm/ui/logic/UnitTexts.h"

#include "cm/ui/logic/WorkspaceOrder.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class UnitTextsTest : public HostTest {
 protected:
  UnitTextsTest() {
    set("CMHeaderItsVersion", "Id: ([0-9.]+)");
    m_boiler.record.header = "Id: 1.7";
    m_notes.record.readOnly = false;
  }
  MemoryUnit& m_boiler = m_model.addUnit("sub/Boiler.vcl");
  MemoryEmbeddedFile& m_notes = m_model.addEmbeddedFile("Notes.txt");
};

TEST_F(UnitTextsTest, LabelsBracketTheAccessOfUnitsButNotOfEmbeddedFiles) {
  const UnitTexts texts;
  EXPECT_EQ(texts.treeLabel(m_boiler), "Boiler (1.7) (RO)");
  EXPECT_EQ(texts.treeLabel(m_notes), "Notes () RO") << "what counts is the file, not the unit";
  m_host.files.write("/plan/Notes.txt", "", true);
  EXPECT_EQ(texts.treeLabel(m_notes), "Notes () RW");
  m_boiler.record.flags |= UnitFlag::Stub;
  EXPECT_EQ(texts.treeLabel(m_boiler), "Boiler (1.7) (U)");
}

TEST_F(UnitTextsTest, CellsFollowTheUnit) {
  m_boiler.record.termName = "Heats water";
  m_boiler.record.state = 0x1;
  const UnitTexts texts;
  EXPECT_EQ(texts.cell(m_boiler, UnitColumn::File), "sub/Boiler.vcl");
  EXPECT_EQ(texts.cell(m_boiler, UnitColumn::Name), "Heats water");
  EXPECT_EQ(texts.cell(m_boiler, UnitColumn::Version), "1.7");
  EXPECT_EQ(texts.cell(m_boiler, UnitColumn::Access), "RO");
  EXPECT_EQ(texts.cell(m_boiler, UnitColumn::Controlled), "") << "no provider is connected";
  EXPECT_NE(texts.sortKey(m_boiler, UnitColumn::Controlled), "");
}

TEST_F(UnitTextsTest, StubsAreMarkedUnlessTheSettingForbidsIt) {
  m_boiler.record.flags |= UnitFlag::Stub;
  EXPECT_EQ(UnitTexts().cell(m_boiler, UnitColumn::Access), "U");
  set("ShowStubUnitMode", "False", "General");
  EXPECT_EQ(UnitTexts().cell(m_boiler, UnitColumn::Access), "RO");
}

TEST_F(UnitTextsTest, ShortPathsIgnoreTheCaseOfTheProjectDirectory) {
  m_boiler.record.directory = "/PLAN/sub";
  EXPECT_EQ(nameNShortPath(&m_boiler), "sub/Boiler.vcl");
  m_boiler.record.directory = "/elsewhere";
  EXPECT_EQ(nameNShortPath(&m_boiler), "/elsewhere/Boiler.vcl");
  EXPECT_EQ(nameNShortPath(nullptr), "");
}

TEST_F(UnitTextsTest, RowsAreSortedByBytesAndUnitsThatAreGoneComeLast) {
  MemoryUnit& small = m_model.addUnit("boiler.vcl");
  MemoryUnit& gone = m_model.addUnit("A.vcl");
  MemoryUnit& same = m_model.addUnit("other/Boiler.vcl");
  const LiveUnits units(UnitList{&small, &gone, &m_boiler, &same});
  m_model.destroy(&gone);
  EXPECT_EQ(orderByColumn(units, UnitTexts(), UnitColumn::Name),
            (std::vector<std::size_t>{2, 3, 0, 1}));
}

}  // namespace
}  // namespace veldra::test
