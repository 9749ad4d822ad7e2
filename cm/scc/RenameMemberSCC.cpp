#include "cm/scc/RenameMemberSCC.h"

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

constexpr char RenameName[] = "Rename";

std::string inDirectoryOf(const IUnit& unit, const std::string& name) {
  return omIsAbsolutePath(name) ? name : joinPath(unit.getDirectory(), name);
}

/// A package goes with its directory when that changes.
bool takesDirectoryAlong(IUnit& unit, const std::string& from, const std::string& to) {
  return isPackageWithDirectory(&unit) && cutAtLastSeparator(from) != cutAtLastSeparator(to);
}

DirectoryMove directoryOf(IUnit& package, const std::string& from, const std::string& to) {
  return {.from = std::string(cutAtLastSeparator(from)),
          .to = std::string(cutAtLastSeparator(to)),
          .files = filesOf(UnitsByFile().with(package)),
          .renamed = from,
          .newName = to};
}

}  // namespace

int RenameMemberSCC::operator()(UnitList& units, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool hybrid) {
  IUnit* const unit = units.size() == 1 ? units.front() : nullptr;
  return (*this)(unit, argumentValue(arguments, "oldName"), argumentValue(arguments, "newName"),
                 diagnostics, hybrid, argumentValue(arguments, "log"));
}

int RenameMemberSCC::operator()(IUnit* unit, const std::string& oldName, const std::string& newName,
                                DiagnosticList& diagnostics, bool /*hybrid*/,
                                const std::string& comment) {
  if (unit == nullptr || newName.empty()) {
    diagnostics.emplace_back(CMDiagnostic::Failed, loadMessage(MessageId::NoNewName), unit);
    return 0;
  }
  const std::string from =
      oldName.empty() ? unit->getFullFileName() : inDirectoryOf(*unit, oldName);
  const pvContextStruct* const context = contextFor(unit, "Getting SCC Context to perform rename");
  if (context == nullptr || !offers(providerState().dll.SccRename, RenameName, diagnostics))
    return 0;
  const std::string to = inDirectoryOf(*unit, newName);
  UnitReport report(RenameName, 1, 1, from);
  const bool isRenamed =
      takesDirectoryAlong(*unit, from, to)
          ? moveDirectory(*context, directoryOf(*unit, from, to), comment, report)
          : moveMember(*context, from, to, comment, report);
  return isRenamed ? 1 : 0;
}

}  // namespace veldra
