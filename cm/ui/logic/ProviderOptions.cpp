#include "cm/ui/logic/ProviderOptions.h"

#include <exception>
#include <functional>

#include "cm/core/CMFacade.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

scc::SCCCOMMAND providerCommand(DialogCommand command) {
  switch (command) {
    case DialogCommand::Fetch:
      return scc::SCC_COMMAND_GET;
    case DialogCommand::CheckOut:
      return scc::SCC_COMMAND_CHECKOUT;
    case DialogCommand::UndoCheckOut:
      return scc::SCC_COMMAND_UNCHECKOUT;
    case DialogCommand::CheckIn:
      return scc::SCC_COMMAND_CHECKIN;
    default:
      return scc::SCC_COMMAND_ADD;
  }
}

/// Whatever a provider throws is told here; dialogs do not let exceptions through.
bool guardedly(const std::function<bool()>& body) {
  try {
    return body();
  } catch (const std::exception& fault) {
    notifyUserAndAsk(fault.what(), MessageBox::IconError);
    return false;
  }
}

pvContextStruct* contextOf(IUnit* unit) {
  pvContextStruct* context = nullptr;
  return SCCConnectToCMRepository().getSccContext(context, unit) == 1 ? context : nullptr;
}

void tellCode(scc::SCCRTN code) {
  notifyUserAndAsk(formatMessage(MessageId::AdvancedOptionsFailed, {std::to_string(code)}),
                   MessageBox::IconError);
}

/// Without `options` the provider only tells whether there are any.
scc::SCCRTN callForOptions(DialogCommand command, scc::LPCMDOPTS* options) {
  const pvContextStruct* const context = contextOf(CurrentWorkspace::GetActiveProject());
  if (context == nullptr) return scc::SCC_OK;
  SCCdll& dll = CMProperty::getSCCdll();
  return dll.call(dll.SccGetCommandOptions, context->getpvContextPtr(), parentWindow(),
                  providerCommand(command), options);
}

}  // namespace

bool ProviderOptions::IsAdvancedOptionsAvailable(DialogCommand command) {
  return guardedly([command] {
    if (!CMProperty::getIsLoaded()) return false;
    *CMProperty::getPvOptionsPtr() = nullptr;
    const scc::SCCRTN code = callForOptions(command, nullptr);
    // A provider that has none of the kind says so with this code, and that is no fault.
    if (code < 0 && code != scc::SCC_E_OPNOTSUPPORTED) tellCode(code);
    return code == scc::SCC_I_ADV_SUPPORT;
  });
}

bool ProviderOptions::show(DialogCommand command) {
  return guardedly([command] {
    const scc::SCCRTN code = callForOptions(command, CMProperty::getPvOptionsPtr());
    if (code < 0) tellCode(code);
    return code >= 0;
  });
}

bool opensProviderContext(IUnit& unit) {
  return guardedly([&unit] { return contextOf(&unit) != nullptr; });
}

bool makesProviderContextCurrent(IUnit* unit) {
  return guardedly([unit] {
    const pvContextStruct* const context = contextOf(unit);
    if (context == nullptr) return false;
    CMProperty::setPvContext(context->getpvContextPtr());
    return true;
  });
}

bool refreshCMStatus(const UnitList& units) {
  return guardedly([&units] {
    IUnit* const first = units.empty() ? nullptr : units.front();
    const pvContextStruct* const context = contextOf(first);
    if (context == nullptr) return false;
    SccQuery::queryAndSetStatus(units, context->getpvContextPtr());
    return true;
  });
}

bool associateUnit(IUnit* unit, bool isNew) {
  return guardedly([unit, isNew] {
    std::string projName;
    std::string auxProjPath;
    if (!isNew && unit != nullptr) unit->getSccArchiveRecursive(projName, auxProjPath);
    pvContextStruct* context = nullptr;
    SCCConnectToCMRepository connection;
    if (connection.connectIt(unit, context, projName, auxProjPath, isNew ? 1 : 0) == 0)
      return false;
    if (unit != nullptr) unit->setSccArchive(projName, auxProjPath);
    CMProperty::setIsConnected(true);
    return true;
  });
}

void disassociateUnit(IUnit* unit) {
  if (unit != nullptr) unit->setSccArchive({}, {});
  CMProperty::setIsConnected(false);
}

}  // namespace veldra
