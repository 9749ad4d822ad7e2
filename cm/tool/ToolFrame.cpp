#include "cm/tool/ToolFrame.h"

#include <optional>
#include <utility>

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/core/HybridRule.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/CommandText.h"

namespace veldra {

namespace {
IProgress* progress() {
  Host* const host = installedHost();
  return host != nullptr ? host->progress() : nullptr;
}
}  // namespace

ReloadBracket::ReloadBracket(bool isNeeded) : m_isNeeded(isNeeded) {
  const CMFacade::ReloadCallback& before = CMFacade::ATMCallbackFunc();
  if (m_isNeeded && before) before(CMFacade::ATMCallbackFuncParameter());
}

ReloadBracket::~ReloadBracket() {
  const CMFacade::ReloadCallback& after = CMFacade::afterATMCallbackFunc();
  if (!m_isNeeded || !after) return;
  try {
    after(CMFacade::afterATMCallbackFuncParameter());
  } catch (...) {
    // The batch is over, perhaps by an exception already.
    VELDRA_TRACE("The host failed after a reload");
  }
}

UnitProgress::UnitProgress(const char* operation, std::size_t position, std::size_t count,
                           std::string unit)
    : m_step{operation, position, count, std::move(unit)} {
  if (progress() != nullptr) progress()->unitStarted(m_step);
}

UnitProgress::~UnitProgress() {
  if (progress() != nullptr) progress()->unitEnded(m_step, m_end, m_words);
}

void UnitProgress::endsAs(UnitEnd end, std::string words) {
  m_end = end;
  m_words = std::move(words);
}

void UnitProgress::endsByCommand(int expanded, int executed) {
  const CommandEnd& last = theCMToolShellInterface().lastCommandEnd();
  if (expanded != 1) {
    endsAs(UnitEnd::NotExpanded);
  } else if (executed == 0) {
    endsAs(UnitEnd::NotRun);
  } else if (last.failed) {
    endsAs(UnitEnd::ToolFailed, last.words);
  }
}

bool UnitProgress::isCancelled() {
  return progress() != nullptr && progress()->isCancelled();
}

CommandTemplate templateForDirectory(IUnit& unit, const CommandTemplate& forDirectory,
                                     const CommandTemplate& forFile) {
  return isPackageWithDirectory(&unit) && hasValue(forDirectory) ? forDirectory : forFile;
}

bool hasValue(const CommandTemplate& command) {
  std::string value;
  return CMProperty::getToolPropertyValue(command.property, value, command.providerMetaclass) &&
         !value.empty();
}

std::string argumentValue(const ArgumentList& arguments, const char* keyword) {
  for (CMArgument* argument : arguments) {
    if (argument != nullptr && argument->isNamed(keyword) != 0)
      return argument->substitute(keyword);
  }
  return {};
}

bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid) {
  std::string message;
  if (operation.isCMTool(message, nullptr, hybrid) != 0) return true;
  diagnostics.emplace_back(CMDiagnostic::Failed, message, nullptr);
  return false;
}

bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics) {
  return refuseUnsafeName(&unit, unit.getFullFileName(), diagnostics);
}

bool refuseUnsafeName(const IUnit* unit, const std::string& name, DiagnosticList& diagnostics) {
  const std::optional<std::string> reason = unsafeInCommand(name);
  if (!reason) return false;
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::UnsafeFileName, {name, *reason}), unit);
  return true;
}

void chooseArchiveOf(const IUnit* unit) {
  if (CMArchive::getArchiveSelection() == CMArchive::ArchiveUnset) return;
  std::string archive;
  CMProperty::getBatchArchiveRecursive(unit, archive);
  CMArchive::setMainArchive(archive);
}

void saveModel(SaveRule rule, bool isListEmpty) {
  if (rule == SaveRule::Never || isListEmpty) return;
  const bool isDueOnce = rule == SaveRule::IfSaveOnCheckOutIsDue;
  if (isDueOnce || rule == SaveRule::IfSaveOnCheckOut) {
    const IProperty* const setting = CMProperty::getToolProperty(IPN::CMSaveOnCheckOut);
    if (setting == nullptr || !setting->getBool()) return;
  }
  if (isDueOnce && CMProperty::saveOnCheckout(-1) == 0) return;
  const CMFacade::SaveCallback& save = CMFacade::saveCallbackFunc();
  if (!save) return;
  save();
  if (isDueOnce) CMProperty::saveOnCheckout(0);
}

int runTraced(const std::string& command, const char* traceBefore, const char* traceAfter,
              std::string& output, std::string& errorText) {
  VELDRA_TRACE(traceBefore, command);
  const int executed = theCMToolShellInterface().Execute(command, output, errorText, "");
  VELDRA_TRACE(traceAfter, output);
  return executed;
}

OverwriteQuestion::OverwriteQuestion(bool isNeeded) : m_asks(isNeeded) {
  if (!isNeeded) return;
  std::string setting;
  CMProperty::getToolPropertyValue("AskOnCheckoutReadWrite", setting);
  m_asks = !equalsNoCase(setting, "No");
}

bool OverwriteQuestion::allows(const IUnit& unit) const {
  const std::string fullName = unit.getFullFileName();
  if (!m_asks || !omFileHasWritePermission(fullName)) return true;
  CCMSyncQuestionDlg question(
      formatMessage(MessageId::OverwriteQuestion, {unit.getFileName(), fullName}));
  return question.DoModal() == MessageBox::AnswerYes;
}

}  // namespace veldra
