#include "cm/scc/ProviderUnit.h"

#include "cm/core/CMOutputer.h"
#include "cm/core/TextTools.h"
#include "cm/core/UnitReload.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/scc/SccQuery.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

ProviderFile::ProviderFile(const IUnit& unit, int kind) {
  Host* const host = installedHost();
  const bool isProject = const_cast<IUnit&>(unit).asProject() != nullptr;
  if (isProject && kind != 0 && host != nullptr) {
    m_handler = host->createModelFileHandler(unit.getFullFileName());
  }
  if (m_handler != nullptr) {
    m_handler->prepare(static_cast<CMVDYHandler::Kind>(kind));
    m_name = m_handler->fileNameToLoad();
  }
  if (m_name.empty()) m_name = joinPath(unit.getDirectory(), unit.getFileName());
  m_name = replaceAll(m_name, "\\\\", "\\");
}

void ProviderFile::succeeded() {
  if (m_handler != nullptr) m_handler->complete();
}

pvContextStruct* contextFor(IUnit* unit, const char* traceLine) {
  if (traceLine != nullptr) VELDRA_TRACE(traceLine);
  pvContextStruct* context = nullptr;
  SCCConnectToCMRepository().getSccContext(context, unit);
  return context;
}

std::string commentOf(const ArgumentList& arguments) {
  CMArgument* const first = arguments.empty() ? nullptr : arguments.front();
  return first != nullptr ? first->substitute("log") : std::string();
}

bool isGone(const CMUnitValidator& validator, IUnit* unit) {
  return validator.isUnitMarkedForValidation(unit) != 0 && validator.isValidUnit(unit) == 0;
}

bool succeeds(long code, UnitReport* report) {
  if (code == 0) return true;
  SCCTextOutProc::InternalTextOutProc(code, 0);
  if (report != nullptr) markFailed(code, *report);
  return false;
}

bool mustStay(const KeptCopy& kept, UnitReport& report) {
  if (kept.objection().empty()) return false;
  report.endsAs(UnitEnd::Refused, kept.objection());
  return true;
}

void markFailed(long code, UnitReport& report) {
  report.endsAs(UnitEnd::ToolFailed, SCCTextOutProc::messageOf(code).text);
}

bool refuse(int messageId, const std::string& file, UnitReport& report) {
  const std::string text = formatMessage(messageId, {file});
  notifyUserAndAsk(text, MessageBox::IconError);
  report.endsAs(UnitEnd::ToolFailed, text);
  return false;
}

namespace {
void reportUnloaded(const std::string& file, UnitReport& report) {
  const std::string message = formatMessage(MessageId::FileNotLoaded, {file});
  CMOutputer::reportLoadingErrror(message);
  report.endsAs(UnitEnd::NotReloaded, message);
}
}  // namespace

IUnit* reloadTraced(IUnit& unit, const std::string& file, CMUnitValidator& validator,
                    ReloadMode mode, UnitReport& report) {
  const std::string recordedName = unit.getRecordedFileName();
  const std::string oldName = unit.getComputedFileName();
  VELDRA_TRACE("Performing ATM for the file ", file);
  bool canReload = false;
  IUnit* reloaded = reloadInPlace(unit, canReload);
  if (!canReload) {
    reloaded = addAgain(unit);
  } else if (mode == ReloadMode::FollowsName) {
    renameToComputedName(reloaded, recordedName, oldName);
  }
  if (reloaded != nullptr) {
    validator.replaceUnit(&unit, reloaded);
    return reloaded;
  }
  reportUnloaded(file, report);
  return nullptr;
}

IUnit* loadTraced(const CMArchiveItem& item, const std::string& file, UnitReport& report) {
  VELDRA_TRACE("Performing ATM for the file ", file);
  IUnit* const unit = loadItem(item, file);
  if (unit == nullptr) reportUnloaded(file, report);
  return unit;
}

void updateUnit(IUnit& unit, const UnitUpdate& update, const pvContextStruct* context) {
  const std::string file = unit.getFullFileName();
  if (update.headerLine != nullptr) {
    VELDRA_TRACE(update.headerLine, file);
    unit.updateCMHeader();
  }
  if (update.modeLine != nullptr) {
    VELDRA_TRACE(update.modeLine, file);
    unit.updateMode("");
  }
  if (update.statusLine == nullptr) return;
  VELDRA_TRACE(update.statusLine, file);
  SccQuery::queryAndSetStatus(&unit, context != nullptr ? context->getpvContextPtr() : nullptr);
}

}  // namespace veldra
