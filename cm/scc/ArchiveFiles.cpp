#include "cm/scc/ArchiveFiles.h"

#include "cm/host/IEnvironment.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SCCPopListFunc.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

long populate(const std::string& directory, scc::SCCCOMMAND command, void* context) {
  SCCdll& dll = providerState().dll;
  FileNames directories(directory);
  scc::LONG status = scc::SCC_STATUS_INVALID;
  const TracedCall traced("SccPopulateList", directories, 1, CallLines::PrePostAndReturn);
  return traced.returned(dll.call(dll.SccPopulateList, context, command, directories.count(),
                                  directories.data(), &SCCPopListFunc::InternalPopListFunc,
                                  scc::LPVOID{nullptr}, &status, scc::LONG{scc::SCC_PL_DIR}));
}

}  // namespace

std::vector<std::string> archiveFilesBelow(const std::string& directory, scc::SCCCOMMAND command,
                                           void* context) {
  const std::string prefix = directory + omPathSeparator();
  std::vector<std::string>& names = CMProperty::getFileNamesList();
  names.clear();
  if (!providerState().dll.has(providerState().dll.SccPopulateList)) {
    for (const IUnit* unit : UnitsByFile().below(directory))
      names.push_back(unit->getFullFileName());
    return names;
  }
  if (!succeeds(populate(directory, command, context), nullptr)) return {};
  // Names are input from outside: nothing beyond the directory is ever touched for them.
  std::erase_if(names, [&](const std::string& name) { return !name.starts_with(prefix); });
  return names;
}

}  // namespace veldra
