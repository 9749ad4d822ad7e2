#include "tests/support/ToolTest.h"

#include "cm/core/CMFacade.h"

namespace veldra::test {

ToolTest::ToolTest() {
  CMFacade::saveCallbackFunc() = [this] { m_host.journal.add("save"); };
  CMFacade::ATMCallbackFunc() = [this](IMainFrame*) { m_host.journal.add("before"); };
  CMFacade::afterATMCallbackFunc() = [this](IMainFrame*) { m_host.journal.add("after"); };
}

CMArchiveItem& ToolTest::addItem(const std::string& path) {
  auto* item = new CMArchiveItem(path, "1.1", CMArchiveItem::ReadOnly, "", "");
  m_ownedItems.addTail(item);
  m_items.addTail(item);
  return *item;
}

void ToolTest::forgetEvents() {
  m_host.journal.clear();
  m_host.traceLog.lines.clear();
  m_host.scriptedProcesses.runs.clear();
  m_host.manager.window.str("");
  m_diagnostics.clear();
}

}  // namespace veldra::test
