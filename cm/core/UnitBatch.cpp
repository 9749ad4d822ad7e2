#include "cm/core/UnitBatch.h"

#include <utility>

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/core/CMFacade.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

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
  try {
    close();
  } catch (...) {
    // The batch is over, perhaps by an exception already.
    VELDRA_TRACE("The host failed after a reload");
  }
}

void ReloadBracket::close() {
  const CMFacade::ReloadCallback& after = CMFacade::afterATMCallbackFunc();
  if (!std::exchange(m_isNeeded, false) || !after) return;
  after(CMFacade::afterATMCallbackFuncParameter());
}

UnitReport::UnitReport(const char* operation, std::size_t position, std::size_t count,
                       std::string unit)
    : m_step{operation, position, count, std::move(unit)} {
  if (progress() != nullptr) progress()->unitStarted(m_step);
}

UnitReport::~UnitReport() {
  // An exception out of a library with a language runtime of its own upsets the count in ours.
  const bool isBrokenDown = moduleState().providerBreakdowns != m_breakdowns;
  if (isBrokenDown || std::uncaught_exceptions() > m_exceptions) m_end = UnitEnd::ToolFailed;
  if (progress() != nullptr) progress()->unitEnded(m_step, m_end, m_words);
}

void UnitReport::endsAs(UnitEnd end, std::string words) {
  m_end = end;
  m_words = std::move(words);
}

bool UnitReport::isCancelled() {
  return progress() != nullptr && progress()->isCancelled();
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

std::string argumentValue(const ArgumentList& arguments, const char* keyword) {
  for (CMArgument* argument : arguments) {
    if (argument != nullptr && argument->isNamed(keyword) != 0)
      return argument->substitute(keyword);
  }
  return {};
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
