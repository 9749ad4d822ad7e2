#include "host/cli/UnitSelection.h"

#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/ExitCode.h"
#include "host/cli/UnitDescription.h"
#include "host/model/FileTypes.h"
#include "host/model/PathNames.h"
#include "host/platform/RealPath.h"

namespace veldra::host::cli {

namespace fs = std::filesystem;

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

/// The package of a folder, or the project for its own.
UnitCore* byFolder(Project& project, const std::string& name) {
  const std::string& root = project.record().folder->path;
  if (name.empty()) return nullptr;
  for (const std::string& path : {absolutePath(name), joinPath(root, name)}) {
    const std::string folder = realPath(path);
    std::error_code unknown;
    if (folder.empty() || !isInside(root, folder) || !fs::is_directory(folder, unknown)) continue;
    return &project.ownerOf(project.folders().below(
        folder.size() > root.size() ? folder.substr(root.size() + 1) : std::string()));
  }
  return nullptr;
}

std::vector<UnitCore*> candidates(Project& project, const std::string& name, bool withPackages) {
  if (UnitCore* const unit = byPath(project, name)) return {unit};
  UnitCore* const package = byFolder(project, name);
  if (package != nullptr && (withPackages || package->hasFile())) return {package};
  std::vector<UnitCore*> named = project.unitsByName(name);
  std::erase_if(named, [&](const UnitCore* unit) { return !unit->hasFile() && !withPackages; });
  return named;
}

void addBelow(const UnitCore& owner, UnitList& units) {
  for (UnitCore* child : owner.children()) {
    if (child->hasFile()) units.push_back(&child->unit());
    addBelow(*child, units);
  }
}

std::string reasonAgainst(const std::vector<UnitCore*>& found, bool isPackage) {
  if (found.empty() && isPackage) {
    return "The package has no file of its own. Name a unit in it; commands that know -r take all "
           "of them.";
  }
  if (found.empty()) {
    return "There is no such unit. \"veldra-cm status\" lists the units of the project; "
           "\"veldra-cm sync --take\" brings what only the archive has.";
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

void checkUnitOptions(const Options& options) {
  if (options.units.empty() && !options.all) {
    throw CommandError(ExitCode::WrongUsage, "Name the units, or give --all.");
  }
  if (!options.units.empty() && options.all) {
    throw CommandError(ExitCode::WrongUsage, "Name the units, or give --all, not both.");
  }
}

UnitCore* unitNamed(Project& project, const std::string& name) {
  const std::vector<UnitCore*> found = candidates(project, name, true);
  return found.size() == 1 ? found.front() : nullptr;
}

std::unordered_set<const IUnit*> addContent(AllUnits which, UnitList& units) {
  UnitList all;
  std::unordered_set<const IUnit*> added;
  for (IUnit* unit : units) {
    const UnitCore* const core = UnitCore::of(unit);
    if (core == nullptr || core->children().empty()) {
      all.push_back(unit);
      continue;
    }
    UnitList content;
    if (core->hasFile()) content.push_back(unit);
    addBelow(*core, content);
    std::erase_if(content, [which](const IUnit* one) { return !isMeant(*one, which); });
    added.insert(content.begin(), content.end());
    all.insert(all.end(), content.begin(), content.end());
  }
  CMFacade::removeDuplicatesFromItemList(all);
  units = std::move(all);
  return added;
}

UnitSelection selectByName(Project& project, const std::vector<std::string>& names,
                           bool withPackages) {
  UnitSelection selection;
  std::set<const UnitCore*> taken;
  for (const std::string& name : names) {
    const std::vector<UnitCore*> found = candidates(project, name, withPackages);
    if (found.size() == 1) {
      if (taken.insert(found.front()).second) selection.units.push_back(&found.front()->unit());
      continue;
    }
    UnitRecord record{.path = name, .mode = "U"};
    record.result = UnitResult::Unknown;
    const bool isPackage = found.empty() && !candidates(project, name, true).empty();
    record.message = reasonAgainst(found, isPackage);
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
