#include "cm/scc/MoveMemberSCC.h"

#include <utility>
#include <vector>

#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/MemberMove.h"
#include "cm/scc/ProviderBatch.h"

namespace veldra {

namespace {

constexpr char MoveName[] = "Move";
constexpr char MoveContextLine[] = "Getting SCC Context to perform move";

/// A unit and the full name that its file gets.
using Move = std::pair<IUnit*, std::string>;

int carryOut(const std::vector<Move>& moves, const ArgumentList& arguments,
             DiagnosticList& diagnostics) {
  const std::string comment = argumentValue(arguments, "log");
  int result = moves.empty() ? 0 : 1;
  std::size_t position = 0;
  for (const auto& [unit, newName] : moves) {
    if (UnitReport::isCancelled()) return 0;
    const pvContextStruct* const context = contextFor(unit, MoveContextLine);
    if (context == nullptr || !offers(providerState().dll.SccRename, MoveName, diagnostics))
      return 0;
    const std::string file = unit->getFullFileName();
    UnitReport report(MoveName, ++position, moves.size(), file);
    if (!moveMember(*context, file, newName, comment, report)) result = 0;
  }
  return result;
}

/// The name of a file below one directory as it is below another.
std::string rebased(const std::string& file, const std::string& from, const std::string& to) {
  const std::string prefix = from + omPathSeparator();
  return joinPath(
      to, file.starts_with(prefix) ? std::string_view(file).substr(prefix.size()) : baseName(file));
}

void planMove(IUnit& unit, const UnitsByFile& files, const std::string& target,
              std::vector<Move>& moves) {
  if (!isPackageWithDirectory(&unit)) {
    moves.emplace_back(&unit, joinPath(target, unit.getFileName()));
    return;
  }
  const std::string directory = unit.getDirectory();
  const std::string newDirectory = joinPath(target, baseName(directory));
  for (IUnit* below : files.with(unit)) {
    moves.emplace_back(below, rebased(below->getFullFileName(), directory, newDirectory));
  }
}

}  // namespace

int MoveMemberSCC::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                              bool /*hybrid*/) {
  const std::string target = argumentValue(arguments, "targetDir");
  const UnitsByFile files;
  std::vector<Move> moves;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    const std::string directory = target.empty() ? unit->getPersistAsDirectory() : target;
    if (directory == unit->getDirectory()) {
      diagnostics.emplace_back(CMDiagnostic::Failed,
                               formatMessage(MessageId::NowhereToMove, {unit->getFullFileName()}),
                               unit);
      continue;
    }
    planMove(*unit, files, directory, moves);
  }
  return carryOut(moves, arguments, diagnostics);
}

int MoveMemberSCC::movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                      const std::string& newPath, ArgumentList& arguments,
                                      DiagnosticList& diagnostics, bool /*flag*/) {
  UnitList all;
  if (package != nullptr) all = UnitsByFile().with(*package);
  all.insert(all.end(), units.begin(), units.end());
  std::erase(all, nullptr);
  CMFacade::removeDuplicatesFromItemList(all);
  std::vector<Move> moves;
  for (IUnit* unit : all) {
    moves.emplace_back(unit, rebased(unit->getFullFileName(), oldPath, newPath));
  }
  return carryOut(moves, arguments, diagnostics);
}

}  // namespace veldra
