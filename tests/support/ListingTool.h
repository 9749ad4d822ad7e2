#pragma once

#include <string>

#include "cm/core/TextTools.h"
#include "cm/host/IPN.h"
#include "tests/support/HostTest.h"

namespace veldra::test {

/// A project whose tool lists the archive as lines "name|version|mode|locker", and whose units have
/// the CM header "v:VERSION".
class ListingToolTest : public HostTest {
 protected:
  ListingToolTest() {
    m_model.fullPathRepFiles = true;
    set(IPN::CMArchive, "/main");
    set(IPN::CMListArchive, "ls $archive");
    set(IPN::CMMultiRecordDelimiter, "\\n(?=.)");
    set(IPN::CMListArchiveItsWorkingFile, "^([^|]*)\\|");
    set(IPN::CMListArchiveItsVersion, "^[^|]*\\|([^|]*)");
    set(IPN::CMListArchiveItsMode, "\\|(?:(rw)|ro)\\|");
    set(IPN::CMListArchiveItsLocker, "\\|([^|]+)\\s*$");
    set(IPN::CMHeaderItsVersion, "v:(\\S+)");
    set(IPN::CMCheckOutFromArchive, "co $mode $UnitPath ($label ? -l $label :)");
    set(IPN::CMFetchFromArchive, "get $UnitPath");
    set(IPN::CMReadOnly, "ro");
    set(IPN::CMReadWrite, "rw");
    set("label", "");
  }

  MemoryUnit& addUnit(const std::string& path, const std::string& version, bool writable = false) {
    MemoryUnit& unit = m_model.addUnit(path);
    unit.record.header = "v:" + version;
    unit.record.readOnly = !writable;
    return unit;
  }
  void archiveHolds(const std::string& listing) {
    m_host.scriptedProcesses.answer("ls", {.output = listing});
  }
  /// The commands that were run and begin with a word, without blanks at their ends.
  Lines commandsOf(const std::string& word) const {
    Lines lines;
    for (const std::string& command : m_host.scriptedProcesses.commands()) {
      if (command.starts_with(word + " ")) lines.emplace_back(trimmed(command));
    }
    return lines;
  }
  /// The numbers of the messages that the user was shown.
  std::string messages() const {
    std::string ids;
    for (const auto& shown : m_host.memoryMessages.asked) ids += shown.text.substr(0, 5) + ' ';
    return ids;
  }
};

}  // namespace veldra::test
