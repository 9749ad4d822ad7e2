#include "cm/scc/ContextOpening.h"

#include "cm/host/IModel.h"
#include "cm/host/LogTrace.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char CallerName[] = "Veldra";

std::string localPath() {
  std::string path = CMProperty::getWorkingDir();
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  if (path.empty() && project != nullptr) path = project->getDirectory();
  return path;
}

void traceReturn(const char* entryPoint, long code) {
  std::string line;
  CMProperty::getSCCReturnLogMsg(entryPoint, code, line);
  VELDRA_TRACE(line);
}

bool succeeded(long code) {
  if (code != 0) SCCTextOutProc::InternalTextOutProc(code, 0);
  return code == 0;
}

}  // namespace

ContextOpening::ContextOpening(const std::string& projName, const std::string& auxProjPath)
    : m_user(scc::SCC_USER_SIZE),
      m_project(scc::SCC_PRJPATH_SIZE, projName),
      m_localPath(scc::SCC_LOCALPATH_SIZE, localPath()),
      m_auxPath(scc::SCC_PRJPATH_SIZE, auxProjPath) {}

bool ContextOpening::initialize(pvContextStruct& context, bool tracesReturn) {
  ProviderBuffer name(scc::SCC_NAME_SIZE);
  ProviderBuffer label(scc::SCC_AUXLABEL_SIZE);
  scc::LONG checkoutCommentLength = 0;
  scc::LONG commentLength = 0;
  SCCdll& dll = providerState().dll;
  VELDRA_TRACE("Invoking SccInitialize");
  const long code =
      dll.call(dll.SccInitialize, context.getpvContextPtrPtr(), parentWindow(), CallerName,
               name.data(), &m_capabilities, label.data(), &checkoutCommentLength, &commentLength);
  m_providerName = name.text();
  CMProperty::setSCCToolName(m_providerName);
  if (tracesReturn) traceReturn("SccInitialize", code);
  return succeeded(code);
}

void ContextOpening::setCancelOption(pvContextStruct& context) {
  if (!CMProperty::getProjectBool("SCC", "EnableSCCCancel", false)) return;
  SCCdll& dll = providerState().dll;
  VELDRA_TRACE("Invoking SccSetOption");
  // Says that there is no cancel mode, although it is the setting for one: the text callback never
  // answers "cancel".
  dll.call(dll.SccSetOption, context.getpvContextPtr(), scc::LONG{scc::SCC_OPT_HASCANCELMODE},
           scc::LONG{scc::SCC_OPT_HCM_NO});
}

bool ContextOpening::chooseProject(pvContextStruct& context, int& isNew) {
  SCCdll& dll = providerState().dll;
  VELDRA_TRACE("Invoking SccGetProjPath");
  return succeeded(dll.call(dll.SccGetProjPath, context.getpvContextPtr(), parentWindow(),
                            m_user.data(), m_project.data(), m_localPath.data(), m_auxPath.data(),
                            0, &isNew));
}

bool ContextOpening::openProject(pvContextStruct& context, bool tracesReturn) {
  const bool redirects = CMProperty::getProjectBool("SCC", "RedirectOutputToVeldra", false);
  scc::LPTEXTOUTPROC const textOut = redirects ? &SCCTextOutProc::IDETextOutProc : nullptr;
  SCCdll& dll = providerState().dll;
  VELDRA_TRACE("Invoking SccOpenProject");
  const long code =
      dll.call(dll.SccOpenProject, context.getpvContextPtr(), parentWindow(), m_user.data(),
               m_project.data(), m_localPath.data(), m_auxPath.data(), "", textOut, scc::LONG{0});
  if (tracesReturn) traceReturn("SccOpenProject", code);
  return succeeded(code);
}

void ContextOpening::remember(pvContextStruct& context) const {
  context.setpvContextName(m_project.text());
  const auto capabilities = static_cast<scc::DWORD>(m_capabilities);
  providerState().capabilities = capabilities;
  CMProperty::isSetSCC_CAP_REENTRANT((capabilities & scc::SCC_CAP_REENTRANT) != 0 ? 1 : 0);
  CMProperty::isSetSCC_CAP_COMMENTCHECKOUT((capabilities & scc::SCC_CAP_COMMENTCHECKOUT) != 0 ? 1
                                                                                              : 0);
}

}  // namespace veldra
