// The part of a transaction that keeps stub units and units of other projects out of operations.

#include <algorithm>
#include <optional>

#include "cm/core/CMTranscation.h"
#include "cm/core/ModuleState.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// What the settings allow.
struct Allowed {
  bool stubs = CMProperty::getProjectBool(IPN::General, "AllowCMOperationsOnStubUnits", false);
  bool references =
      CMProperty::getProjectBool(IPN::General, "AllowCMOperationsOnReferenceUnits", false);
};

bool takesStubs(CMTranscationType type) {
  return type == TxnCheckOut || type == TxnConnect || type == TxnFetch || type == TxnFreeCommand;
}

bool takesReferences(CMTranscationType type) {
  return type == TxnConnect || type == TxnFreeCommand;
}

bool isReference(IUnit& unit) {
  const IUnit* const judged = unit.asEmbededFile() != nullptr ? unit.getSaveUnit() : &unit;
  return judged != nullptr && judged->isReferenced();
}

/// The message for a unit that may not take part, or nothing for one that may.
std::optional<int> reasonToSkip(IUnit& unit, CMTranscationType type, const Allowed& allowed) {
  const bool hasFile = (unit.getFlags() & UnitFlag::SavedSeparately) != 0;
  if (!hasFile && unit.asEmbededFile() == nullptr) return std::nullopt;
  if ((unit.getFlags() & UnitFlag::Stub) != 0 && !allowed.stubs) {
    if (takesStubs(type)) return std::nullopt;
    return MessageId::StubUnitSkipped;
  }
  if (!allowed.references && isReference(unit) && !takesReferences(type)) {
    return MessageId::ReferenceUnitSkipped;
  }
  return std::nullopt;
}

void tellSkipped(const IUnit& unit, int messageId, std::ostream* out) {
  CMTxnGlobalState& notices = moduleState().notices;
  if (notices.skippedUnitsWarned == 0) {
    notifyUserAndAsk(loadMessage(MessageId::UnitsSkipped),
                     MessageBox::IconWarning | MessageBox::Ok);
    notices.skippedUnitsWarned = 1;
  }
  if (out != nullptr) {
    *out << formatMessage(messageId, {unit.getName(), unit.getTypeName()}) << '\n';
  }
}

void noticeControlledFile(IUnit& unit, CMTranscationType type) {
  CMTxnGlobalState& notices = moduleState().notices;
  if (unit.asEmbededFile() == nullptr || type != TxnCheckOut ||
      notices.controlledFileNoticeShown != 0) {
    return;
  }
  OneTimeMessageBox("CONTROLLED_FILE_CHECKOUT_MSG",
                    formatMessage(MessageId::ControlledFileNotice, {unit.getFileName()}),
                    MessageBox::IconInformation);
  notices.controlledFileNoticeShown = 1;
}

}  // namespace

void CMTranscation::checkUnitsForOperation(UnitList& units) {
  const CMTranscation* const current = getCurTranscation();
  if (current == nullptr || CurrentWorkspace::GetActiveProject() == nullptr) return;
  const CMTranscationType type = current->getTranscationType();
  IAbstractCMManager* const manager = installedHost()->cmManager();
  std::ostream* const out = manager != nullptr ? manager->getOutputStream() : nullptr;
  const Allowed allowed;

  const auto dropped = [&](IUnit* unit) {
    if (unit == nullptr) return false;
    const std::optional<int> reason = reasonToSkip(*unit, type, allowed);
    if (reason) {
      tellSkipped(*unit, *reason, out);
    } else {
      noticeControlledFile(*unit, type);
    }
    return reason.has_value();
  };
  units.erase(std::remove_if(units.begin(), units.end(), dropped), units.end());
  if (out != nullptr) out->flush();
}

}  // namespace veldra
