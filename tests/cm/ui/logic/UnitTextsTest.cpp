#include "cm/ui/logic/UnitTexts.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

#include "cm/ui/logic/KeyOrder.h"
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
  std::string storage;
  EXPECT_NE(texts.sortKey(m_boiler, UnitColumn::Controlled, storage), "");
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
  EXPECT_EQ(WorkspaceOrder().byColumn(units, UnitTexts(), UnitColumn::Name),
            (std::vector<std::size_t>{2, 3, 0, 1}));
}

TEST_F(UnitTextsTest, RowsFollowEveryTextThatChangesAfterTheyWereSorted) {
  UnitList listed;
  for (const char* file : {"c.vcl", "b.vcl", "a.vcl", "d.vcl", "e.vcl"}) {
    listed.push_back(&m_model.addUnit(file));
  }
  const auto unit = [&](std::size_t i) { return static_cast<MemoryUnit*>(listed[i]); };
  LiveUnits units(listed);
  WorkspaceOrder sorted;
  const std::vector<std::pair<const char*, std::function<void()>>> changes{
      {"nothing", [] {}},
      {"a name", [&] { unit(1)->record.name = "f"; }},
      {"the last name", [&] { unit(4)->record.name = "0"; }},
      {"a name like another", [&] { unit(0)->record.name = "d"; }},
      {"rows that stand elsewhere",
       [&] {
         units.reorder({4, 3, 2, 1, 0});
       }},
      {"the list",
       [&] {
         units.assign({listed[3], listed[0], listed[1], listed[4], listed[2]});
       }},
      {"fewer units",
       [&] {
         units.assign({listed[3], listed[0]});
       }},
      {"one that is gone", [&] { m_model.destroy(unit(0)); }}};
  for (const auto& [what, change] : changes) {
    sorted.byColumn(units, UnitTexts(), UnitColumn::Name);
    change();
    for (const std::int32_t column : {UnitColumn::Name, UnitColumn::File, UnitColumn::Name}) {
      EXPECT_EQ(sorted.byColumn(units, UnitTexts(), column),
                WorkspaceOrder().byColumn(units, UnitTexts(), column))
          << what << ' ' << column;
    }
  }
}

/// Against a sort that compares: texts with long common beginnings, one the beginning of the other,
/// with bytes of value zero, and many of them; in their order, almost, and in none.
TEST(KeyOrderTest, SortsLikeAStableSortOfTheBytes) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  const auto awkward = [&](std::size_t longest) {
    std::string text = "common/" + std::string(below(3) * longest, 'x');
    for (std::size_t length = below(12); length > 0; --length) {
      text +=
          below(40) == 0 ? static_cast<char>(below(256)) : std::string("\0\1ab\xFF", 5)[below(5)];
    }
    return text;
  };
  for (const std::size_t count : {0U, 1U, 2U, 40U, 3000U, 9000U}) {
    for (const std::size_t longest : {9U, 25U, 70U}) {
      for (const std::size_t displaced : {std::size_t{0}, std::size_t{2}, count}) {
        std::vector<std::string> texts(count);
        for (std::string& text : texts) text = awkward(longest);
        std::sort(texts.begin(), texts.end());
        for (std::size_t i = 0; i < displaced && count > 0; ++i) {
          std::swap(texts[below(count)], texts[below(count)]);
        }
        std::vector<std::size_t> rows(count);  // By position, the text that stands there.
        std::iota(rows.begin(), rows.end(), std::size_t{0});
        std::shuffle(rows.begin(), rows.end(), random);
        std::vector<std::size_t> positions(count);
        for (std::size_t i = 0; i < count; ++i) positions[rows[i]] = i;
        KeyOrder keys(count);
        for (std::size_t i = 0; i < count; ++i) keys.add(texts[i], positions[i]);
        std::vector<std::size_t> expected(count);
        std::iota(expected.begin(), expected.end(), std::size_t{0});
        std::stable_sort(expected.begin(), expected.end(), [&](std::size_t a, std::size_t b) {
          return texts[rows[a]] < texts[rows[b]];
        });
        EXPECT_EQ(keys.order(), expected) << count << ' ' << longest << ' ' << displaced;
      }
    }
  }
}

}  // namespace
}  // namespace veldra::test
