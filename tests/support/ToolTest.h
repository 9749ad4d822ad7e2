#pragma once

#include <string>
#include <vector>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMOperation.h"
#include "tests/support/HostTest.h"

namespace veldra::test {

/// Operations of the command-line back end: the facade's callbacks write "save", "before" and
/// "after" into the journal, and lists for a call are at hand.
class ToolTest : public HostTest {
 protected:
  ToolTest();

  /// Calls an operation with the members below; they show afterwards what it left.
  template <class Operation>
  int callOnUnits(bool hybrid = false) {
    Operation operation;
    return static_cast<CMWorkspaceOperation&>(operation)(m_units, m_arguments, m_diagnostics,
                                                         hybrid);
  }
  template <class Operation>
  int callOnItems() {
    return Operation()(m_items, m_arguments, m_diagnostics);
  }
  /// An item of the list `m_items`, which the fixture owns.
  CMArchiveItem& addItem(const std::string& path);

  std::vector<std::string> commands() const { return m_host.scriptedProcesses.commands(); }
  void answer(const std::string& part, Reply reply) {
    m_host.scriptedProcesses.answer(part, std::move(reply));
  }
  void forgetEvents();

  UnitList m_units;
  CMArchiveItemList m_items;
  ArgumentList m_arguments;
  DiagnosticList m_diagnostics;

 private:
  CMArchiveItemListWrapper m_ownedItems;
};

}  // namespace veldra::test
