#include "cm/core/CMUnitValidator.h"

#include <memory>
#include <new>

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

/// A unit whose handle cannot be had in one way or another.
class UnreachableUnit : public MemoryUnit {
 public:
  enum class Way { Fault, Other, NoHandle };
  UnreachableUnit(Journal& journal, MemoryFiles& files, Way way)
      : MemoryUnit(journal, files, {}), m_way(way) {}
  std::unique_ptr<IHandle> getHandle() override {
    if (m_way == Way::Fault) throw ProcessorFault("bad address");
    if (m_way == Way::Other) throw 42;
    return nullptr;
  }

 private:
  Way m_way;
};

class CMUnitValidatorTest : public HostTest {
 protected:
  MemoryUnit& m_a = m_model.addUnit("A.vcl");
  MemoryUnit& m_b = m_model.addUnit("B.vcl");
  CMUnitValidator m_validator;
};

TEST_F(CMUnitValidatorTest, RefusesNullAndUnitsWithoutAHandle) {
  UnreachableUnit faulty(m_host.journal, m_host.files, UnreachableUnit::Way::Fault);
  UnreachableUnit throwing(m_host.journal, m_host.files, UnreachableUnit::Way::Other);
  UnreachableUnit handleless(m_host.journal, m_host.files, UnreachableUnit::Way::NoHandle);
  for (IUnit* unit : UnitList{nullptr, &faulty, &throwing, &handleless}) {
    EXPECT_EQ(m_validator.init(unit), 0);
    EXPECT_EQ(m_validator.isUnitMarkedForValidation(unit), 0);
    EXPECT_EQ(m_validator.isValidUnit(unit), 0);
    EXPECT_EQ(m_validator.removeUnit(unit), 0);
    EXPECT_EQ(m_validator.replaceUnit(&m_a, unit), 0);
  }
  EXPECT_GT(m_host.memoryFaultGuard.entered, 0);
}

TEST_F(CMUnitValidatorTest, SameUnitTwiceIsOneEntry) {
  EXPECT_EQ(m_validator.init(UnitList{&m_a, nullptr, &m_a}), 1);
  UnitList units{&m_b};
  m_validator.getValidUnitList(units);
  EXPECT_THAT(units, ElementsAre(&m_a));
}

TEST_F(CMUnitValidatorTest, EmptyListEmptiesTheCallersList) {
  EXPECT_EQ(m_validator.init(UnitList{}), 1);
  UnitList units{&m_a};
  m_validator.getValidUnitList(units);
  EXPECT_THAT(units, IsEmpty());
}

TEST_F(CMUnitValidatorTest, DestroyedUnitStaysMarkedButIsNotValid) {
  m_validator.init(UnitList{&m_a, &m_b});
  IUnit* const gone = &m_a;
  m_model.destroy(gone);
  EXPECT_EQ(m_validator.isUnitMarkedForValidation(gone), 1);
  EXPECT_EQ(m_validator.isValidUnit(gone), 0);
  EXPECT_EQ(m_validator.isValidUnit(&m_b), 1);
  UnitList units;
  m_validator.getValidUnitList(units);
  EXPECT_THAT(units, ElementsAre(&m_b));
}

TEST_F(CMUnitValidatorTest, ANewObjectAtTheSameAddressIsNotTheOldOne) {
  alignas(MemoryUnit) std::byte place[sizeof(MemoryUnit)];
  auto* unit = new (place) MemoryUnit(m_host.journal, m_host.files, {});
  m_validator.init(unit);
  EXPECT_EQ(m_validator.isValidUnit(unit), 1);
  unit->~MemoryUnit();
  unit = new (place) MemoryUnit(m_host.journal, m_host.files, {});
  EXPECT_EQ(m_validator.isUnitMarkedForValidation(unit), 1);
  EXPECT_EQ(m_validator.isValidUnit(unit), 0);
  unit->~MemoryUnit();
}

TEST_F(CMUnitValidatorTest, ReplaceNeedsAMarkedOldAndAnUnmarkedNewUnit) {
  MemoryUnit& c = m_model.addUnit("C.vcl");
  m_validator.init(UnitList{&m_a, &m_b});
  EXPECT_EQ(m_validator.replaceUnit(&m_a, &m_b), 0);
  EXPECT_EQ(m_validator.isUnitMarkedForValidation(&m_a), 1);
  EXPECT_EQ(m_validator.replaceUnit(&c, &m_a), 0);
  EXPECT_EQ(m_validator.replaceUnit(nullptr, &c), 0);
  EXPECT_EQ(m_validator.replaceUnit(&m_a, &c), 1);
  EXPECT_EQ(m_validator.isUnitMarkedForValidation(&m_a), 0);
  EXPECT_EQ(m_validator.isValidUnit(&c), 1);
  UnreachableUnit faulty(m_host.journal, m_host.files, UnreachableUnit::Way::Fault);
  EXPECT_EQ(m_validator.replaceUnit(&c, &faulty), 0);
  EXPECT_EQ(m_validator.isValidUnit(&c), 1);
}

TEST_F(CMUnitValidatorTest, ReplaceWorksAfterTheOldObjectIsGone) {
  m_validator.init(UnitList{&m_a});
  IUnit* const old = &m_a;
  MemoryUnit& fresh = m_model.replace(old);
  if (&fresh == old) GTEST_SKIP() << "the allocator gave the same address";
  EXPECT_EQ(m_validator.replaceUnit(old, &fresh), 1);
  UnitList units;
  m_validator.getValidUnitList(units);
  EXPECT_THAT(units, ElementsAre(&fresh));
}

TEST_F(CMUnitValidatorTest, ValidUnitsComeBucketByBucket) {
  // Seventeen buckets, chosen by the address without its low four bits.
  UnitList units;
  for (int i = 0; i < 40; ++i) units.push_back(&m_model.addUnit(std::to_string(i) + ".vcl"));
  m_validator.init(units);
  UnitList valid;
  m_validator.getValidUnitList(valid);
  EXPECT_THAT(valid, SizeIs(units.size()));
  const auto bucket = [](const IUnit* unit) {
    return (reinterpret_cast<std::uintptr_t>(unit) >> 4U) % 17;
  };
  EXPECT_TRUE(std::is_sorted(valid.begin(), valid.end(), [&](const IUnit* a, const IUnit* b) {
    return bucket(a) < bucket(b);
  }));
}

TEST_F(CMUnitValidatorTest, FaultsWhileReleasingHandlesAreSwallowed) {
  class FaultyGuard : public CSignal2Exception {
   public:
    void guard(const std::function<void()>&) override { throw 42; }
  };
  class FaultyHost : public MemoryHost {
   public:
    CSignal2Exception* faultGuard() override { return &faulty; }
    FaultyGuard faulty;
  } host;
  {
    CMUnitValidator validator;
    validator.init(&m_a);
    installHost(&host);
  }
  installHost(&m_host);
}

class CMAskOnCheckoutGuardTest : public HostTest {
 protected:
  int ask(const char* userSays) {
    m_host.memoryMessages.overwriteAnswers = {userSays};
    return CCMSyncQuestionDlg("overwrite?").DoModal();
  }
  std::size_t shown() const { return m_host.memoryMessages.overwriteQuestions.size(); }
};

TEST_F(CMAskOnCheckoutGuardTest, AnswersAndWhatTheyMeanForTheNextUnit) {
  struct Row {
    const char* says;
    int result;
    bool holdsForAll;
  };
  for (const Row& row : std::vector<Row>{{"yes", 6, false},
                                         {"yestoall", 6, true},
                                         {"no", 7, false},
                                         {"notoall", 7, true},
                                         {"cancel", 2, false},
                                         {"anything else", 6, false}}) {
    SCOPED_TRACE(row.says);
    CMAskOnCheckoutGuard guard;
    const std::size_t before = shown();
    EXPECT_EQ(ask(row.says), row.result);
    const int next = ask("cancel");
    EXPECT_EQ(next, row.holdsForAll ? row.result : 2);
    EXPECT_EQ(shown() - before, row.holdsForAll ? 1U : 2U);
  }
}

TEST_F(CMAskOnCheckoutGuardTest, OnlyTheOutermostGuardForgets) {
  {
    CMAskOnCheckoutGuard outer;
    {
      CMAskOnCheckoutGuard inner;
      CMAskOnCheckoutGuard copy(inner);
      EXPECT_EQ(ask("yestoall"), 6);
    }
    EXPECT_EQ(ask("no"), 6);
  }
  EXPECT_EQ(ask("no"), 7);
}

}  // namespace
}  // namespace veldra::test
