#include "cm/scc/MoveMemberSCC.h"

#include <functional>
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

/// What one unit takes along under which name: its file, or the directory of a package with the
/// files in it.
struct Move {
  IUnit* unit;
  std::string from;
  std::string to;
  std::vector<std::string> files{};  ///< Empty for a file by itself.
};

int carryOut(const std::vector<Move>& moves, const ArgumentList& arguments,
             DiagnosticList& diagnostics) {
  const std::string comment = argumentValue(arguments, "log");
  int result = moves.empty() ? 0 : 1;
  std::size_t position = 0;
  for (const auto& [unit, from, to, files] : moves) {
    if (UnitReport::isCancelled()) return 0;
    const pvContextStruct* const context = contextFor(unit, MoveContextLine);
    if (context == nullptr || !offers(providerState().dll.SccRename, MoveName, diagnostics))
      return 0;
    UnitReport report(MoveName, ++position, moves.size(), unit->getFullFileName());
    const bool isMoved = files.empty()
                             ? moveMember(*context, from, to, comment, report)
                             : moveDirectory(*context, {from, to, files}, comment, report);
    if (!isMoved) result = 0;
  }
  return result;
}

Move planMove(IUnit& unit, const UnitsByFile& units, const std::string& target) {
  if (!isPackageWithDirectory(&unit)) {
    return {&unit, unit.getFullFileName(), joinPath(target, unit.getFileName())};
  }
  const std::string directory = unit.getDirectory();
  return {&unit, directory, joinPath(target, baseName(directory)), filesOf(units.with(unit))};
}

}  // namespace

int MoveMemberSCC::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                              bool /*hybrid*/) {
  const std::string target = argumentValue(arguments, "targetDir");
  const UnitsByFile all;
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
    moves.push_back(planMove(*unit, all, directory));
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
  if (package != nullptr) {
    const auto isOutside = [prefix = oldPath + omPathSeparator()](const IUnit* unit) {
      return !unit->getFullFileName().starts_with(prefix);
    };
    UnitList inside = all;
    std::erase_if(inside, isOutside);
    if (!inside.empty()) moves.push_back({package, oldPath, newPath, filesOf(inside)});
    std::erase_if(all, std::not_fn(isOutside));
  }
  for (IUnit* unit : all) {
    const std::string file = unit->getFullFileName();
    moves.push_back({unit, file, rebased(file, oldPath, newPath)});
  }
  return carryOut(moves, arguments, diagnostics);
}

}  // namespace veldra
