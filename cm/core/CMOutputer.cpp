#include "cm/core/CMOutputer.h"

#include "cm/core/ModuleState.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

std::ostream*& CMOutputer::operator()() {
  ModuleState& state = moduleState();
  Host* const host = installedHost();
  IAbstractCMManager* const manager = host != nullptr ? host->cmManager() : nullptr;
  // A stream that the host planted through the facade stays; otherwise the window's is followed.
  if (state.outputStream == state.windowStream) {
    state.windowStream = manager != nullptr ? manager->getOutputStream() : nullptr;
    state.outputStream = state.windowStream;
  }
  return state.outputStream;
}

void CMOutputer::writeToCMOutputWnd(const std::string& text) {
  Host* const host = installedHost();
  IAbstractCMManager* const manager = host != nullptr ? host->cmManager() : nullptr;
  std::ostream* const out = manager != nullptr ? manager->getOutputStream() : nullptr;
  if (text.empty() || out == nullptr) return;
  manager->setCMOutputFollows(1);
  *out << '\n' << text << '\n';
  out->flush();
}

void CMOutputer::reportLoadingErrror(const std::string& message) {
  std::string where;
  if (message.empty() || !CMProperty::getToolPropertyValue("ReportLoadingError", where)) return;
  const bool both = equalsNoCase(where, "Both");
  if (both || equalsNoCase(where, "Output Window")) writeToCMOutputWnd("ERROR : " + message);
  if (both || equalsNoCase(where, "Message Box")) {
    notifyUserAndAsk(message, MessageBox::IconError);
  }
}

IWindow* CMOutputer::getTopMostWindow(IWindow* window) {
  return window == nullptr || window->isEnabled() ? window : window->lastActivePopup();
}

CMOutputer& getMainCMOutputer() {
  return moduleState().mainOutputer;
}

}  // namespace veldra
