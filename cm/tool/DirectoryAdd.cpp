#include "cm/tool/DirectoryAdd.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "cm/tool/DirectoryCommand.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

namespace {

int checkOutDirectory(const std::string& directory, CMOperation& operation,
                      DiagnosticList& diagnostics) {
  static constexpr DirectoryCommand row{
      "CheckOut", "Executing the following command to check out the directory: ",
      "Check out directory command returned the following: "};
  return runDirectoryCommand(row, {{"$mode", ""}, {"$LabelPart", directory}}, operation,
                             diagnostics);
}

int checkInDirectory(const std::string& directory, CMOperation& operation,
                     DiagnosticList& diagnostics) {
  static constexpr DirectoryCommand row{
      "CheckIn", "Executing the following command to check in the directory: ",
      "Check in directory command returned the following: "};
  return runDirectoryCommand(row, {{"$LogPart", "-nc"}, {"$UnitPath", directory}}, operation,
                             diagnostics);
}

int addMemberWithoutCheckInCheckOutDirectory(const std::string& file, CMOperation& operation,
                                             DiagnosticList& diagnostics) {
  static constexpr DirectoryCommand row{"AddMember_WithoutCheckOutCheckInDirectory",
                                        "Executing the following command to add the file",
                                        "Add member command returned the following: "};
  return runDirectoryCommand(row, {{"$UnitPath", file}}, operation, diagnostics);
}

/// Units that are saved in one directory, in the order of the list.
using Group = std::pair<std::string, UnitList>;

std::vector<Group> groupUnitsByPersistAs(const UnitList& units) {
  std::vector<Group> groups;
  std::map<std::string, std::size_t> indexOf;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    const std::string directory = unit->getPersistAsDirectory();
    const auto [at, isNew] = indexOf.emplace(directory, groups.size());
    if (isNew) groups.emplace_back(directory, UnitList());
    groups[at->second].second.push_back(unit);
  }
  return groups;
}

/// The units whose names a command can carry; the others get a diagnostic.
UnitList carriable(const UnitList& units, DiagnosticList& diagnostics) {
  UnitList result;
  for (IUnit* unit : units) {
    if (unit == nullptr || refuseUnsafeName(*unit, diagnostics) ||
        refuseUnsafeName(unit, unit->getPersistAsDirectory(), diagnostics)) {
      continue;
    }
    result.push_back(unit);
  }
  return result;
}

}  // namespace

int addDirectoryByDirectory(CMOperation& operation, const UnitList& units,
                            DiagnosticList& diagnostics) {
  const UnitList accepted = carriable(units, diagnostics);
  std::size_t position = 0;
  int status = 0;
  for (const auto& [directory, members] : groupUnitsByPersistAs(accepted)) {
    if (UnitProgress::isCancelled()) break;
    const int checkedOut = checkOutDirectory(directory, operation, diagnostics);
    for (const IUnit* unit : members) {
      if (UnitProgress::isCancelled()) break;
      const std::string file = unit->getFullFileName();
      UnitProgress progress("Add to Archive", ++position, accepted.size(), file);
      if (checkedOut != 0) {
        status = addMemberWithoutCheckInCheckOutDirectory(file, operation, diagnostics);
      }
      progress.endsByCommand(1, checkedOut != 0 ? status : 0);
    }
    // The directory goes back whatever became of its files.
    status = checkInDirectory(directory, operation, diagnostics);
  }
  return status;
}

}  // namespace veldra
