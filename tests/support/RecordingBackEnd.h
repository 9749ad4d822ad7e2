#pragma once

#include <string>
#include <vector>

#include "cm/core/BackEnd.h"

namespace veldra::test {

/// A back end that writes down what it is asked, as "side.function" and " hybrid" where that holds.
class RecordingBackEnd : public BackEnd {
 public:
  RecordingBackEnd(std::string side, std::vector<std::string>& calls, int result)
      : m_side(std::move(side)), m_calls(calls), m_result(result) {}

  int connectToArchive(const UnitCall& c) override { return note("connectToArchive", c.hybrid); }
  int listWorkspace(const UnitCall& c) override { return note("listWorkspace", c.hybrid); }
  int fetch(const UnitCall& c) override { return note("fetch", c.hybrid); }
  int fetchForDiff(const UnitCall& c) override { return note("fetchForDiff", c.hybrid); }
  int lockItem(const UnitCall& c) override { return note("lockItem", c.hybrid); }
  int unlockItem(const UnitCall& c) override { return note("unlockItem", c.hybrid); }
  int properties(const UnitCall& c) override { return note("properties", c.hybrid); }
  int checkOut(const UnitCall& c) override { return note("checkOut", c.hybrid); }
  int checkIn(const UnitCall& c) override { return note("checkIn", c.hybrid); }
  int history(const UnitCall& c) override { return note("history", c.hybrid); }
  int uncheckout(const UnitCall& c) override { return note("uncheckout", c.hybrid); }
  int recCheckOut(const UnitCall& c) override { return note("recCheckOut", c.hybrid); }
  int recCheckIn(const UnitCall& c) override { return note("recCheckIn", c.hybrid); }
  int recUncheckout(const UnitCall& c) override { return note("recUncheckout", c.hybrid); }
  int addMember(const UnitCall& c) override { return note("addMember", c.hybrid); }
  int deleteMember(const UnitCall& c) override { return note("deleteMember", c.hybrid); }
  int moveMember(const UnitCall& c) override { return note("moveMember", c.hybrid); }

  int listArchive(const ItemCall&) override { return note("listArchive"); }
  int checkOutFromArchive(const ItemCall&) override { return note("checkOutFromArchive"); }
  int fetchFromArchive(const ItemCall&) override { return note("fetchFromArchive"); }
  int recCheckOutFromArchive(const ItemCall&) override { return note("recCheckOutFromArchive"); }
  int recFetchFromArchive(const ItemCall&) override { return note("recFetchFromArchive"); }
  int fetchForDiffFromArc(const ItemCall&) override { return note("fetchForDiffFromArc"); }
  int historyArcView(const ItemCall&) override { return note("historyArcView"); }
  int uncheckoutItems(const ItemCall&) override { return note("uncheckoutItems"); }

  int addDirectory(const DirectoryCall& c) override { return note("addDirectory " + c.directory); }
  int deleteDirectory(const DirectoryCall& c) override {
    return note("deleteDirectory " + c.directory);
  }
  int renameMember(const RenameCall& c) override { return note("renameMember", c.hybrid); }
  int movePackageContent(const PackageMoveCall&) override { return note("movePackageContent"); }

  int setUp() override { return note("setUp"); }
  int cleanUp() override { return note("cleanUp"); }
  int runTool() override { return note("runTool"); }

 private:
  int note(const std::string& function, bool hybrid = false) {
    m_calls.push_back(m_side + '.' + function + (hybrid ? " hybrid" : ""));
    return m_result;
  }

  std::string m_side;
  std::vector<std::string>& m_calls;
  int m_result;
};

/// Plants a recording back end on both sides for the length of a test. Both answer 7, a number that
/// no other path of the facade makes up.
class RecordedBackEnds {
 public:
  static constexpr int Result = 7;
  RecordedBackEnds() { backEnds() = {&m_tool, &m_provider}; }
  RecordedBackEnds(const RecordedBackEnds&) = delete;
  RecordedBackEnds& operator=(const RecordedBackEnds&) = delete;
  ~RecordedBackEnds() { backEnds() = m_former; }

  std::vector<std::string> calls;

 private:
  BackEnds m_former = backEnds();
  RecordingBackEnd m_tool{"tool", calls, Result};
  RecordingBackEnd m_provider{"provider", calls, Result};
};

}  // namespace veldra::test
