// Association of the model with a project of the archive.

#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderState.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// Sets a text property of the project, which need not have had it before.
void setProjectText(IProject& project, const char* name, const std::string& value) {
  if (IProperty* const own = project.findProperty(IPN::CM, IPN::SCC, name, true)) {
    own->setValue(value);
    return;
  }
  std::unique_ptr<IProperty> created = installedHost()->model().createTextProperty(name, value);
  if (created != nullptr) project.attachProperty(IPN::CM, IPN::SCC, std::move(created));
}

void setProjectArchive(IProject& project, const std::string& projName,
                       const std::string& auxProjPath) {
  setProjectText(project, "ProjName", projName);
  setProjectText(project, "AuxProjPath", auxProjPath);
}

bool wantsAnotherProject() {
  return notifyUserAndAsk(loadMessage(MessageId::AssociateAnew),
                          MessageBox::YesNo | MessageBox::IconQuestion |
                              MessageBox::DefaultSecond) == MessageBox::AnswerYes;
}

/// Closes the project's context. The registry loses its last record, which need not be that one:
/// then the closed record stays behind, empty, and no name finds it.
void closeRegistered(pvContextStruct& record) {
  closeContext(record);
  record = pvContextStruct();
  ProviderState& state = providerState();
  state.unlinked.push_back(std::move(state.contexts.back()));
  state.contexts.pop_back();
}

void dissociate(IProject& project, IUnit& unit, const std::string& projName) {
  if (pvContextStruct* const record = CMProperty::findPvStructByContextName(projName)) {
    closeRegistered(*record);
  }
  setProjectArchive(project, "", "");
  unit.setSccArchive("", "");
}

int connectToKnown(SCCConnectToCMRepository& connection, IUnit& unit, std::string& projName,
                   std::string& auxProjPath) {
  if (CMProperty::findPvStructByContextName(projName) != nullptr) return 1;
  pvContextStruct* context = nullptr;
  if (connection.connectLazy(&unit, context, projName, auxProjPath) == 0) return 0;
  CMProperty::setIsConnected(true);
  return 1;
}

}  // namespace

int SCCConnectToCMRepository::operator()(UnitList& units, ArgumentList& /*arguments*/,
                                         DiagnosticList& /*diagnostics*/) {
  IProject* const project = CurrentWorkspace::GetActiveProject();
  if (project == nullptr) return 0;
  IUnit* unit = units.empty() ? nullptr : units.front();
  if (unit == nullptr) unit = project;

  std::string projName;
  std::string auxProjPath;
  if (CMProperty::getSccArchiveRecursive(unit, projName, auxProjPath) != 0) {
    if (!wantsAnotherProject()) return connectToKnown(*this, *unit, projName, auxProjPath);
    dissociate(*project, *unit, projName);
  }
  pvContextStruct* context = nullptr;
  if (connectIt(project, context, projName, auxProjPath, 1) == 0) return 0;
  setProjectArchive(*project, projName, auxProjPath);
  project->setSccArchive(projName, auxProjPath);
  notifyUserAndAsk(loadMessage(MessageId::Associated), MessageBox::IconInformation);
  CMProperty::setIsConnected(true);
  return 1;
}

}  // namespace veldra
