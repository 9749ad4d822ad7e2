#include "cm/core/KeptCopy.h"

#include "tests/cm/tool/UnitOperationsTest.h"

namespace veldra::test {

TEST_F(UnitOperationsTest, ACopyIsKeptBeforeACommandThatMayOverwrite) {
  struct Kept {
    const char* name;
    bool isWritable;
    Lines lines;
  };
  const std::string file = "/plan/Engine.vcl";
  const auto around = [&file](const std::string& operation) {
    return Lines{"keep " + file + " before " + operation, "settle " + file};
  };
  const Kept rows[] = {{"check out", false, {}},
                       {"check out", true, around("Check Out")},
                       {"undo", false, around("Undo Check Out")},
                       {"unlock", true, around("Unlock")},
                       {"fetch", false, around("Fetch")},
                       {"check in", true, {}},
                       {"lock", true, {}}};
  set("AskOnCheckoutReadWrite", "No");
  for (const Kept& row : rows) {
    m_units = {&m_model.addUnit("Engine.vcl")};
    m_host.files.write(file, "text", row.isWritable);
    m_host.memoryKeptCopies.lines.clear();
    call(row.name);
    EXPECT_EQ(m_host.memoryKeptCopies.lines, row.lines) << row.name;
  }
  m_units = {&m_model.addUnit("Engine.vcl")};
  m_host.memoryKeptCopies.refusal = "no room";
  forgetEvents();
  call("undo");
  EXPECT_EQ(commands(), Lines{}) << "without a copy nothing runs";
  EXPECT_EQ(m_host.memoryProgress.ended.back().end, UnitEnd::Refused);
}

}  // namespace veldra::test
