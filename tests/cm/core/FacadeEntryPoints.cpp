// The facade's entry points as a table.

#include "tests/cm/core/CMFacadeTest.h"

namespace veldra::test {

Call onUnits(UnitEntryPoint entry) {
  return [entry](Caller& c) { return entry(c.units, c.arguments, c.diagnostics); };
}
Call onItems(ItemEntryPoint entry) {
  return [entry](Caller& c) { return entry(c.items, c.arguments, c.diagnostics); };
}

std::vector<EntryRow> unitRows() {
  using F = CMFacade;
  return {
      {"ConnectToArchive", 15, "tool.connectToArchive", "provider.connectToArchive", false, false,
       onUnits(F::ConnectToArchive)},
      {"Fetch", 1, "tool.fetch", "provider.fetch", true, false, onUnits(F::Fetch)},
      {"FetchForDiff", 1, "provider.fetchForDiff", "provider.fetchForDiff", true, false,
       onUnits(F::FetchForDiff)},
      {"LockItem", 0, "tool.lockItem", "tool.lockItem", true, false, onUnits(F::LockItem)},
      {"UnLockItem", 2, "tool.unlockItem", "tool.unlockItem", true, false, onUnits(F::UnLockItem)},
      {"Properties", 10, "provider.properties", "provider.properties", true, false,
       onUnits(F::Properties)},
      {"CheckOut", 5, "tool.checkOut", "provider.checkOut", true, true, onUnits(F::CheckOut)},
      {"CheckIn", 4, "tool.checkIn", "provider.checkIn", true, true, onUnits(F::CheckIn)},
      {"History", 3, "tool.history", "provider.history", true, true, onUnits(F::History)},
      {"Uncheckout", 9, "tool.uncheckout", "provider.uncheckout", true, true,
       onUnits(F::Uncheckout)},
      {"RecCheckOut", 5, "tool.recCheckOut", "provider.recCheckOut", true, false,
       onUnits(F::RecCheckOut)},
      {"RecCheckIn", 4, "tool.recCheckIn", "provider.checkIn", true, false, onUnits(F::RecCheckIn)},
      {"RecUncheckout", 9, "tool.recUncheckout", "", true, false, onUnits(F::RecUncheckout)},
      {"AddMember", 6, "tool.addMember", "provider.addMember", true, false, onUnits(F::AddMember)},
      {"DeleteMember", 12, "tool.deleteMember", "provider.deleteMember", true, false,
       onUnits(F::DeleteMember)},
      {"MoveMember", 8, "tool.moveMember", "provider.moveMember", false, false,
       onUnits(F::MoveMember)},
  };
}

static std::vector<EntryRow> otherRows() {
  using F = CMFacade;
  return {
      {"ListArchive", 11, "tool.listArchive", "provider.listArchive", false, false,
       onItems(F::ListArchive)},
      {"ConnectToArchive of items", 15, "", "", false, false, onItems(F::ConnectToArchive)},
      {"CheckOutFromArchive", 5, "tool.checkOutFromArchive", "provider.checkOutFromArchive", false,
       false, onItems(F::CheckOutFromArchive)},
      {"FetchFromArchive", 1, "tool.fetchFromArchive", "provider.fetchFromArchive", false, false,
       onItems(F::FetchFromArchive)},
      {"RecCheckOutFromArchive", 5, "tool.recCheckOutFromArchive",
       "provider.recCheckOutFromArchive", false, false, onItems(F::RecCheckOutFromArchive)},
      {"RecFetchFromArchive", 1, "tool.recFetchFromArchive", "provider.recFetchFromArchive", false,
       false, onItems(F::RecFetchFromArchive)},
      {"FetchForDiffFromArc", 1, "provider.fetchForDiffFromArc", "provider.fetchForDiffFromArc",
       false, false, onItems(F::FetchForDiffFromArc)},
      {"HistoryArcView", 3, "provider.historyArcView", "provider.historyArcView", false, false,
       onItems(F::HistoryArcView)},
      {"Uncheckout of items", 9, "tool.uncheckoutItems", "tool.uncheckoutItems", false, false,
       onItems(F::Uncheckout)},
      {"AddDirectory", 7, "", "provider.addDirectory /plan/new", false, false,
       [](Caller& c) { return F::AddDirectory("/plan/new", c.arguments, c.diagnostics); }},
      {"DeleteDirectory", 13, "tool.deleteDirectory /plan/old", "tool.deleteDirectory /plan/old",
       false, false,
       [](Caller& c) {
         return F::DeleteDirectory("/plan/old", c.arguments, c.diagnostics, true, nullptr);
       }},
      {"movePackageContent", 8, "tool.movePackageContent", "tool.movePackageContent", false, false,
       [](Caller& c) {
         return F::movePackageContent(nullptr, c.units, "/a", "/b", c.arguments, c.diagnostics,
                                      false);
       }},
      {"RenameMember", 14, "tool.renameMember", "provider.renameMember", false, false,
       [](Caller& c) {
         return F::RenameMember(nullptr, "/plan/a.vcl", "/plan/b.vcl", c.diagnostics);
       }},
  };
}

std::vector<EntryRow> allRows() {
  std::vector<EntryRow> rows = unitRows();
  for (EntryRow& row : otherRows()) rows.push_back(std::move(row));
  return rows;
}

}  // namespace veldra::test
