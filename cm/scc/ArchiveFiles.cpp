#include "cm/scc/ArchiveFiles.h"

#include <algorithm>
#include <string_view>

#include "cm/core/TextTools.h"
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

bool isSeparator(char c) {
  return c == '/' || c == omPathSeparator();
}

/// Where a name may have either separator, it may be in either case too.
bool isSameInPath(char a, char b) {
  if (a == b) return true;
  if (omPathSeparator() != '\\') return false;
  return (isSeparator(a) && isSeparator(b)) || lowerCase(a) == lowerCase(b);
}

bool stepsBack(std::string_view name) {
  while (!name.empty()) {
    const auto end = std::ranges::find_if(name, isSeparator);
    const auto length = static_cast<std::size_t>(end - name.begin());
    if (name.substr(0, length) == "..") return true;
    name.remove_prefix(std::min(length + 1, name.size()));
  }
  return false;
}

bool isBelow(std::string_view name, std::string_view directory) {
  return name.size() > directory.size() && isSeparator(name[directory.size()]) &&
         std::ranges::equal(name.substr(0, directory.size()), directory, isSameInPath) &&
         !stepsBack(name.substr(directory.size()));
}

}  // namespace

std::vector<std::string> archiveFilesBelow(const std::string& directory, scc::SCCCOMMAND command,
                                           void* context) {
  std::vector<std::string>& names = CMProperty::getFileNamesList();
  names.clear();
  if (!providerState().dll.has(providerState().dll.SccPopulateList)) {
    for (const IUnit* unit : UnitsByFile().below(directory))
      names.push_back(unit->getFullFileName());
    return names;
  }
  if (!succeeds(populate(directory, command, context), nullptr)) return {};
  // Names are input from outside: nothing beyond the directory is ever touched for them.
  std::erase_if(names, [&](const std::string& name) { return !isBelow(name, directory); });
  return names;
}

}  // namespace veldra
