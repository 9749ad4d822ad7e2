#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMArguments.h"
#include "cm/core/CMUnit.h"
#include "cm/templates/CMProperty.h"
#include "tests/support/HostTest.h"

namespace veldra::test {

/// Expansion with a label "1.3", a comment "two words" and the unit "drive/Engine.vcl".
class ExpansionTest : public HostTest {
 protected:
  ExpansionTest() { debugTraces(); }

  int expand(const std::string& text) {
    std::string extra = "scratch";
    m_host.manager.window.str("");
    const int result = CMProperty::Expand(text, arguments(), m_out, extra);
    EXPECT_EQ(extra, "scratch");
    return result;
  }
  ArgumentList arguments() { return {nullptr, m_label.get(), m_log.get(), &m_unit}; }

  void checkRow(const char* text, int result, const std::string& out) {
    SCOPED_TRACE(text);
    m_out.clear();
    EXPECT_EQ(expand(text), result);
    EXPECT_EQ(m_out, out);
  }

  MemoryUnit& m_engine = m_model.addUnit("drive/Engine.vcl");
  std::unique_ptr<CMArgument> m_label = std::make_unique<CMLabel>("1.3");
  std::unique_ptr<CMArgument> m_log = std::make_unique<CMLog>("two words");
  CMUnit m_unit{&m_engine};
  std::string m_out;
};

struct ExpandRow {
  const char* text;
  int result;
  const char* out;
};

}  // namespace veldra::test
