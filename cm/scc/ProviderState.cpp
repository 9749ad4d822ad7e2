#include "cm/scc/ProviderState.h"

#include <algorithm>
#include <utility>

#include "cm/core/TextTools.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

ProviderState& providerState() {
  std::unique_ptr<BackEndMemory>& memory = moduleState().provider;
  if (memory == nullptr) memory = std::make_unique<ProviderState>();
  return static_cast<ProviderState&>(*memory);
}

SCCdll& CMProperty::getSCCdll() {
  return providerState().dll;
}

std::string CMProperty::getSCCProviderDLL() {
  return providerState().libraryPath;
}

bool CMProperty::getDLLokay() {
  return providerState().libraryFound;
}

bool CMProperty::getIsConnected() {
  return providerState().isConnected;
}

void CMProperty::setIsConnected(bool isConnected) {
  providerState().isConnected = isConnected;
}

int CMProperty::isSetSCC_CAP_REENTRANT(int set) {
  int& flag = providerState().isReentrant;
  return flag = flag != 0 || set != 0 ? 1 : 0;
}

int CMProperty::isSetSCC_CAP_COMMENTCHECKOUT(int set) {
  int& flag = providerState().commentsCheckOut;
  return flag = flag != 0 || set != 0 ? 1 : 0;
}

void* CMProperty::getPvContext() {
  return providerState().legacyContext;
}

void CMProperty::setPvContext(void* context) {
  providerState().legacyContext = context;
}

void* CMProperty::getPvOptions() {
  return providerState().options;
}

void** CMProperty::getPvOptionsPtr() {
  return &providerState().options;
}

std::vector<std::string>& CMProperty::getFileNamesList() {
  return providerState().fileNames;
}

std::vector<pvContextStruct*> CMProperty::getPvContextStructList() {
  std::vector<pvContextStruct*> list;
  for (const auto& record : providerState().contexts) list.push_back(record.get());
  return list;
}

pvContextStruct* CMProperty::addPvStruct() {
  ProviderState::Contexts& contexts = providerState().contexts;
  contexts.push_back(std::make_unique<pvContextStruct>());
  return contexts.back().get();
}

namespace {

ProviderState::Contexts::iterator findByName(ProviderState::Contexts& contexts,
                                             const std::string& name) {
  if (name.empty()) return contexts.end();
  return std::ranges::find_if(
      contexts, [&](const auto& record) { return equalsNoCase(record->getpvContextName(), name); });
}

}  // namespace

pvContextStruct* CMProperty::findPvStructByContextName(const std::string& name) {
  ProviderState::Contexts& contexts = providerState().contexts;
  const auto at = findByName(contexts, name);
  return at != contexts.end() ? at->get() : nullptr;
}

int CMProperty::removePvStructByContextName(const std::string& name) {
  ProviderState& state = providerState();
  const auto at = findByName(state.contexts, name);
  if (at == state.contexts.end()) return 0;
  state.unlinked.push_back(std::move(*at));
  state.contexts.erase(at);
  return 1;
}

}  // namespace veldra
