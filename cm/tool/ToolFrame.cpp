#include "cm/tool/ToolFrame.h"

#include <optional>
#include <utility>

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/core/CMFacade.h"
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

bool hasCMTool(CMOperation& operation, DiagnosticList& diagnostics, bool hybrid) {
  std::string message;
  if (operation.isCMTool(message, nullptr, hybrid) != 0) return true;
  diagnostics.emplace_back(CMDiagnostic::Failed, message, nullptr);
  return false;
}

bool refuseUnsafeName(const IUnit& unit, DiagnosticList& diagnostics) {
  const std::string file = unit.getFullFileName();
  const std::optional<std::string> reason = unsafeInCommand(file);
  if (!reason) return false;
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::UnsafeFileName, {file, *reason}), &unit);
  return true;
}

void saveModel(SaveRule rule, bool isListEmpty) {
  if (rule == SaveRule::Never || isListEmpty) return;
  if (rule == SaveRule::IfSaveOnCheckOut) {
    const IProperty* const setting = CMProperty::getToolProperty(IPN::CMSaveOnCheckOut);
    if (setting == nullptr || !setting->getBool()) return;
  }
  if (const CMFacade::SaveCallback& save = CMFacade::saveCallbackFunc()) save();
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
