#include "cm/scc/SCCConnectToCMRepository.h"

#include <exception>

#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ContextOpening.h"
#include "cm/scc/ProviderSearch.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The record of a context that is being opened. It leaves the registry when that fails: always
/// the last one goes.
class OpeningRecord {
 public:
  explicit OpeningRecord(pvContextStruct*& context) : m_context(context) {
    if (m_context == nullptr) m_context = CMProperty::addPvStruct();
  }
  ~OpeningRecord() {
    if (m_isOpen) return;
    ProviderState::Contexts& contexts = providerState().contexts;
    if (!contexts.empty()) contexts.pop_back();
    m_context = nullptr;
  }
  OpeningRecord(const OpeningRecord&) = delete;
  OpeningRecord& operator=(const OpeningRecord&) = delete;

  int opened() {
    m_isOpen = true;
    return 1;
  }

 private:
  pvContextStruct*& m_context;
  bool m_isOpen = false;
};

/// A provider that can have one context only loses all that are open.
void closeContexts(pvContextStruct*& context) {
  ProviderState& state = providerState();
  // Taken out first: whatever the provider does meanwhile, none of them is used again.
  ProviderState::Contexts contexts;
  contexts.swap(state.contexts);
  context = nullptr;
  for (const auto& record : contexts) {
    if (record->getpvContextPtr() != nullptr) closeContext(*record);
  }
}

/// Some providers open their one project without naming it; their own name stands for it then.
void repairEmptyProject(const ContextOpening& opening, std::string& projName,
                        std::string& auxProjPath) {
  if (!projName.empty() || !auxProjPath.empty()) return;
  const IProperty* const setting = CMProperty::getProjectProperty("SCC", "VaulrixSCCName");
  const std::string unnamed = setting != nullptr ? setting->getValue() : "vaultrix";
  if (!equalsNoCase(opening.providerName(), unnamed)) return;
  projName = opening.providerName();
  auxProjPath = opening.providerName();
}

int findOrOpenContext(SCCConnectToCMRepository& connection, pvContextStruct*& context,
                      IUnit* unit) {
  std::string projName;
  std::string auxProjPath;
  if (CMProperty::getSccArchiveRecursive(unit, projName, auxProjPath) == 0) {
    notifyUserAndAsk(loadMessage(MessageId::NoArchive), MessageBox::IconError);
    return 0;
  }
  context = CMProperty::findPvStructByContextName(projName);
  if (context != nullptr) return 1;
  if (connection.connectLazy(unit, context, projName, auxProjPath) == 0) return 0;
  CMProperty::setIsConnected(true);
  return 1;
}

}  // namespace

void closeContext(const pvContextStruct& record) {
  SCCdll& dll = providerState().dll;
  void* const context = record.getpvContextPtr();
  VELDRA_TRACE("Invoking SccCloseProject");
  dll.call(dll.SccCloseProject, context);
  VELDRA_TRACE("Invoking SccUninitialize");
  dll.call(dll.SccUninitialize, context);
}

int SCCConnectToCMRepository::connectIt(IUnit* /*unit*/, pvContextStruct*& context,
                                        std::string& projName, std::string& auxProjPath,
                                        int isNew) {
  if (isNew != 0 && CMProperty::getIsConnected() && CMProperty::isSetSCC_CAP_REENTRANT(0) == 0) {
    closeContexts(context);
  }
  if (CurrentWorkspace::GetActiveProject() == nullptr) return 0;
  ContextOpening opening(projName, auxProjPath);
  loadProviderOnce();
  OpeningRecord record(context);
  if (!opening.initialize(*context, false)) return 0;
  opening.setCancelOption(*context);
  if (!opening.chooseProject(*context, isNew) || !opening.openProject(*context, false)) return 0;
  opening.remember(*context);
  projName = opening.projectName();
  auxProjPath = opening.auxPath();
  repairEmptyProject(opening, projName, auxProjPath);
  return record.opened();
}

int SCCConnectToCMRepository::connectLazy(IUnit* /*unit*/, pvContextStruct*& context,
                                          std::string& projName, std::string& auxProjPath) {
  if (CurrentWorkspace::GetActiveProject() == nullptr) return 0;
  ContextOpening opening(projName, auxProjPath);
  loadProviderOnce();
  OpeningRecord record(context);
  if (!opening.initialize(*context, true)) return 0;
  opening.setCancelOption(*context);
  if (!opening.openProject(*context, true)) return 0;
  opening.remember(*context);
  projName = opening.projectName();
  auxProjPath = opening.auxPath();
  return record.opened();
}

int SCCConnectToCMRepository::getSccContext(pvContextStruct*& context, IUnit* unit) {
  context = nullptr;
  if (unit == nullptr) unit = CurrentWorkspace::GetActiveProject();
  if (unit == nullptr) return 0;
  int result = 0;
  try {
    guardFaults([&] { result = findOrOpenContext(*this, context, unit); });
  } catch (const std::exception& e) {
    VELDRA_TRACE("The connection broke off: ", e.what());
    notifyUserAndAsk(loadMessage(MessageId::ConnectionBroken), MessageBox::IconError);
    context = nullptr;
    result = 0;
  }
  return result;
}

}  // namespace veldra
