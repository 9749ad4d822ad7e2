#include "cm/ui/logic/compare/ComparedVersions.h"

#include <algorithm>
#include <vector>

#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/core/TextTools.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/LiveUnits.h"

namespace veldra {

namespace {

using FacadeCall = int (*)(UnitList&, ArgumentList&, DiagnosticList&);

bool isLoaded(const IUnit& unit) {
  return (unit.getFlags() & UnitFlag::Stub) == 0;
}

/// A tool that takes a target writes there. For any other, and for providers, the call sees to it
/// that the working file stays as it is.
FacadeCall fetchCall() {
  const bool usesTool = CMProperty::getUseSCCtool() == 0;
  const bool takesTarget = usesTool && fetchTakesTarget(IPN::CMFetch);
  return takesTarget ? &CMFacade::Fetch : &CMFacade::FetchForDiff;
}

/// Makes the directories that lead from the side to the file.
bool makeDirectoriesFor(const std::string& file, const std::string& side) {
  IEnvironment& environment = installedHost()->environment();
  const std::string directory(cutAtLastSeparator(file));
  for (std::size_t end = side.size(); end < directory.size();) {
    end = std::min(directory.find(environment.omPathSeparator(), end + 1), directory.size());
    if (!environment.createDirectory(directory.substr(0, end))) return false;
  }
  return true;
}

bool fetchTo(IUnit& unit, const std::string& label, const std::string& file,
             DiagnosticList& diagnostics) {
  CMTargetFile target(file);
  CMMode mode(CMMode::ReadOnly);
  CMLabel version(label);
  ArgumentList arguments{&target, &mode, &version};
  UnitList units{&unit};
  return bringsFile(
      file, [&] { return fetchCall()(units, arguments, diagnostics); }, diagnostics);
}

bool tellNotWritten(const IUnit& unit, const std::string& side) {
  dialogError(formatMessage(MessageId::SideNotWritten, {unit.getName(), side}));
  return false;
}

}  // namespace

bool fetchTakesTarget(const std::string& property) {
  std::string command;
  return CMProperty::getToolPropertyValue(property, command) &&
         findNoCase(command, "targetDir") != std::string::npos;
}

bool bringsFile(const std::string& file, const std::function<int()>& fetch,
                DiagnosticList& diagnostics) {
  // Another comparison of this second may have left its file here.
  installedHost()->environment().removeFile(file);
  const bool isDone = guardedCall(fetch, diagnostics).value_or(0) != 0;
  const bool toolFailed =
      CMProperty::getUseSCCtool() == 0 && theCMToolShellInterface().lastCommandEnd().failed;
  return isDone && !toolFailed && omFileExist(file);
}

std::string fileInSide(const IUnit& unit, const IUnit& root, const std::string& side) {
  const std::string top = root.getDirectory();
  const std::string directory = unit.getDirectory();
  const bool isBelow = directory.starts_with(top) && directory.size() > top.size() &&
                       directory[top.size()] == omPathSeparator();
  const std::string relative = isBelow ? directory.substr(top.size() + 1) : std::string();
  return joinPath(relative.empty() ? side : joinPath(side, relative), unit.getFileName());
}

bool saveUnitInto(IUnit& unit, const std::string& side) {
  Host* const host = installedHost();
  if (host == nullptr || !host->environment().setCurrentDirectory(side)) {
    return tellNotWritten(unit, side);
  }
  const bool isSaved = unit.saveUnitToFile(unit.getFileName());
  host->environment().setCurrentDirectory("..");
  return isSaved || tellNotWritten(unit, side);
}

bool saveTreeInto(IUnit& root, const std::string& side) {
  for (IUnit* unit : withNestedFiles({&root})) {
    if (!isLoaded(*unit)) continue;
    const std::string file = fileInSide(*unit, root, side);
    if (!makeDirectoriesFor(file, side) || !unit->saveUnitToFile(file)) {
      return tellNotWritten(*unit, side);
    }
  }
  return true;
}

bool fetchVersionInto(IUnit& unit, const std::string& label, const std::string& side,
                      DiagnosticList& diagnostics) {
  return fetchTo(unit, label, fileInSide(unit, unit, side), diagnostics);
}

bool fetchTreeInto(IUnit& root, const std::string& label, const std::string& side,
                   DiagnosticList& diagnostics) {
  const LiveUnits units(withNestedFiles({&root}));
  // The root may be another object after the first fetch.
  std::vector<std::string> files;
  for (IUnit* unit : units.alive()) files.push_back(fileInSide(*unit, root, side));
  bool isAnyFetched = false;
  for (std::size_t i = 0; i < files.size(); ++i) {
    IUnit* const unit = units.at(i);
    if (unit == nullptr || !isLoaded(*unit)) continue;
    if (!makeDirectoriesFor(files[i], side)) return tellNotWritten(*unit, side);
    isAnyFetched = fetchTo(*unit, label, files[i], diagnostics) || isAnyFetched;
  }
  return isAnyFetched;
}

}  // namespace veldra
