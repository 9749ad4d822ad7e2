#include "cm/scc/SCCPopListFunc.h"

#include <string_view>
#include <utility>

#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IProperty.h"
#include "cm/scc/CallbackThread.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// True when the name is new. Archives have tens of thousands of files, so that an index is kept
/// beside the list.
bool isNew(ProviderState& state, const std::string& fileName) {
  if (state.fileNameIndex.size() != state.fileNames.size()) {
    state.fileNameIndex = {state.fileNames.begin(), state.fileNames.end()};
  }
  return state.fileNameIndex.insert(fileName).second;
}

void collect(const std::string& fileName) {
  ProviderState& state = providerState();
  if (!SCCPopListFunc::isListed(fileName) || !isNew(state, fileName)) return;
  state.fileNames.push_back(fileName);
}

}  // namespace

scc::BOOL SCC_CALL SCCPopListFunc::InternalPopListFunc(scc::LPVOID /*data*/, scc::BOOL addKeep,
                                                       scc::LONG /*status*/, scc::LPSTR fileName) {
  if (addKeep == 0 || fileName == nullptr) return 1;
  CallbackThread::run([name = std::string(fileName)] { collect(name); });
  return 1;
}

bool SCCPopListFunc::isListed(const std::string& fileName) {
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr || fileName.empty()) return false;
  if (fileName.find(project->getName()) == std::string::npos) return true;
  const IProperty* const showsAll = CMProperty::getToolProperty("ShowAllFilesInArchive");
  if (showsAll != nullptr && showsAll->getBool()) return true;
  return trimmed(afterLastBackslash(fileName)) == project->getFileName();
}

}  // namespace veldra
