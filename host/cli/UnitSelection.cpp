#include "host/cli/UnitSelection.h"

#include <optional>
#include <set>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/UnitDescription.h"
#include "host/model/FileTypes.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

/// The unit of a file. The file's folder may be reached through links.
UnitCore* byPath(const Project& project, const std::string& name) {
  const std::string absolute = absolutePath(name);
  if (UnitCore* const unit = project.unitByFile(absolute)) return unit;
  const std::string folder = realPath(std::string(parentPath(absolute)));
  if (!folder.empty()) {
    if (UnitCore* const unit = project.unitByFile(joinPath(folder, baseName(absolute)))) {
      return unit;
    }
  }
  const std::optional<std::string> plain = plainRelative(name);
  return plain ? project.unitByFile(*plain) : nullptr;
}

std::vector<UnitCore*> candidates(const Project& project, const std::string& name) {
  if (UnitCore* const unit = byPath(project, name)) return {unit};
  std::vector<UnitCore*> named = project.unitsByName(name);
  std::erase_if(named, [](const UnitCore* unit) { return !unit->hasFile(); });
  return named;
}

std::string reasonAgainst(const std::vector<UnitCore*>& found) {
  if (found.empty()) {
    return "There is no such unit. \"veldra-cm status\" lists the units of the project.";
  }
  std::string reason = "The name means several units; give a path:";
  for (const UnitCore* unit : found) reason += "\n" + unit->relativeFileName();
  return reason;
}

bool isMeant(const IUnit& unit, AllUnits which) {
  const bool isStub = (unit.getFlags() & UnitFlag::Stub) != 0;
  return which == AllUnits::Every ||
         (!isStub && unit.isReadOnly() == (which == AllUnits::ReadOnly));
}

/// The module's listing leaves out other projects' files and, by default, names without a dot.
bool isListable(IUnit& unit) {
  const std::string name = unit.getFileName();
  if (name.find('.') == std::string::npos) {
    return !CMProperty::getProjectBool(IPN::General, "IgnoreArchiveItemsWithoutDot", true);
  }
  return !FileTypes::isProjectFile(name) || unit.asProject() != nullptr;
}

}  // namespace

UnitSelection selectByName(Project& project, const std::vector<std::string>& names) {
  UnitSelection selection;
  std::set<const UnitCore*> taken;
  for (const std::string& name : names) {
    const std::vector<UnitCore*> found = candidates(project, name);
    if (found.size() == 1) {
      if (taken.insert(found.front()).second) selection.units.push_back(&found.front()->unit());
      continue;
    }
    UnitRecord record{.path = name, .mode = "U"};
    record.result = UnitResult::Unknown;
    record.message = reasonAgainst(found);
    selection.unknown.push_back(std::move(record));
  }
  return selection;
}

UnitSelection selectAll(AllUnits which) {
  UnitSelection selection;
  ArgumentList arguments;
  DiagnosticList diagnostics;
  CMFacade::ListWorkspace(selection.units, arguments, diagnostics);
  std::erase_if(selection.units,
                [which](const IUnit* unit) { return unit == nullptr || !isMeant(*unit, which); });
  return selection;
}

void keepByArchive(ArchivedUnits rule, const std::unordered_set<std::string>& archived,
                   UnitList& units) {
  std::erase_if(units, [&](IUnit* unit) {
    const bool isArchived = archived.contains(projectPath(*unit));
    return isListable(*unit) && isArchived == (rule == ArchivedUnits::LeaveOut);
  });
}

}  // namespace veldra::host::cli
