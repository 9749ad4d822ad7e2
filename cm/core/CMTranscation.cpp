#include "cm/core/CMTranscation.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "cm/core/ModuleState.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

Undoer* undoerFor(CMTranscationType type) {
  Host* const host = installedHost();
  return host != nullptr && type != TxnFreeCommand ? host->undoer() : nullptr;
}

IAbstractCMManager* cmManager() {
  Host* const host = installedHost();
  return host != nullptr ? host->cmManager() : nullptr;
}

}  // namespace

CMTranscation::CMTranscation(const IViewParameters* view, int undoFlag, CMTranscationType type,
                             std::string operationName)
    : m_operationName(std::move(operationName)), m_transcationType(type) {
  moduleState().transcations.push_back(this);
  Undoer* undoToClose = nullptr;
  try {
    Undoer* const undoer = undoerFor(type);
    if (undoer != nullptr) {
      undoer->startTransaction(view, undoFlag);
      ++moduleState().openUndos;
    }
    undoToClose = undoer;
    if (IAbstractCMManager* const manager = cmManager()) manager->setCMOperationRunning(1);
    CMTranscation::markStartTranscation();
  } catch (...) {
    leave();
    if (undoToClose != nullptr) {
      --moduleState().openUndos;
      undoToClose->endTransaction();
    }
    throw;
  }
}

CMTranscation::~CMTranscation() {
  try {
    if (Undoer* const undoer = undoerFor(m_transcationType)) {
      if (moduleState().openUndos > 0) --moduleState().openUndos;
      undoer->endTransaction();
    }
    CMTranscation::markEndTranscation();
  } catch (...) {
    // The operation is over; a host that fails here must not take the process down.
    VELDRA_TRACE("The host failed at the end of a transaction");
  }
  leave();
}

/// Takes this transaction out of the live ones.
void CMTranscation::leave() {
  std::vector<CMTranscation*>& live = moduleState().transcations;
  live.erase(std::remove(live.begin(), live.end(), this), live.end());
  if (live.empty()) moduleState().notices.reset();
}

void CMTranscation::markStartTranscation() {
  IAbstractCMManager* const manager = cmManager();
  if (manager == nullptr || manager->getOutputStream() == nullptr ||
      CurrentWorkspace::GetActiveProject() == nullptr) {
    return;
  }
  if (CMProperty::getProjectBool(IPN::General, "CMClearWindowBeforeOperation", false)) {
    manager->clearOutputWindow();
  }
  writeSeparator("CMOperationStartSeparator");
}

void CMTranscation::markEndTranscation() {
  writeSeparator("CMOperationEndSeparator");
}

void CMTranscation::writeSeparator(const char* propertyName) const {
  IAbstractCMManager* const manager = cmManager();
  std::ostream* const out = manager != nullptr ? manager->getOutputStream() : nullptr;
  const IProperty* const separator = CMProperty::getProjectProperty(IPN::General, propertyName);
  if (out == nullptr || separator == nullptr || separator->getValue().empty()) return;
  *out << expandKeyWords(separator->getValue());
  out->flush();
}

std::string CMTranscation::expandKeyWords(std::string text) const {
  // In this order: a value that contains a later keyword is expanded again.
  const std::array<std::pair<std::string_view, std::string>, 4> keywords{
      {{"$Time", omGetCurrentTime()},
       {"$Date", omGetCurrentDate()},
       {"$User", omGetCurrentUser()},
       {"$Operation", m_operationName}}};
  for (const auto& [keyword, value] : keywords) text = replaceAll(text, keyword, value);
  return text;
}

bool CMTranscation::isValidTranscation() {
  if (CurrentWorkspace::GetActiveProject() == nullptr) return false;
  if (CMProperty::useSccCompliantTool() != 0) return true;
  const IProperty* const tool = CMProperty::getCMTool(nullptr, false);
  if (tool == nullptr || !equalsNoCase(tool->getValue(), "NONE")) return true;
  notifyUserAndAsk(loadMessage(MessageId::NoCMToolSelected),
                   MessageBox::IconError | MessageBox::Ok);
  return false;
}

CMTranscation* CMTranscation::getCurTranscation() {
  const std::vector<CMTranscation*>& live = moduleState().transcations;
  return live.empty() ? nullptr : live.back();
}

int CMTranscation::getTranscationNesting() {
  return static_cast<int>(moduleState().transcations.size());
}

bool CMTranscation::isNestedTranscation() {
  return getTranscationNesting() > 1;
}

CMTranscation* CMTranscation::ifLive() {
  const std::vector<CMTranscation*>& live = moduleState().transcations;
  return std::find(live.begin(), live.end(), this) != live.end() ? this : nullptr;
}

// Neither moves to a neighbour: callers rely on getting this transaction back.
CMTranscation* CMTranscation::getPrevTranscation() {
  return ifLive();
}
CMTranscation* CMTranscation::getNextTranscation() {
  return ifLive();
}

}  // namespace veldra
