#include "cm/core/CMStatus.h"

#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// A state that has no controlled label at all.
constexpr std::int32_t Unlabelled = -3084;

std::int32_t stateOf(const IUnit* unit) {
  return unit != nullptr ? unit->getCMState() : CMState::Invalid;
}

bool has(std::int32_t state, std::int32_t bit) {
  return (state & bit) != 0;
}

}  // namespace

std::string CMStatus::controlledLabel(std::int32_t state) {
  if (state == Unlabelled) return {};
  if (!has(state, CMState::Controlled)) return loadMessage(MessageId::StateNotControlled);
  return loadMessage(has(state, CMState::Deleted) ? MessageId::StateDeleted
                                                  : MessageId::StateControlled);
}

std::string CMStatus::checkedOutLabel(std::int32_t state) {
  if (!has(state, CMState::Controlled) || has(state, CMState::Deleted)) return {};
  if (has(state, CMState::CheckedOut)) return loadMessage(MessageId::StateCheckedOut);
  if (has(state, CMState::OutOther)) return loadMessage(MessageId::StateOutOther);
  return loadMessage(has(state, CMState::OutByUser) ? MessageId::StateOutElsewhere
                                                    : MessageId::StateNotCheckedOut);
}

std::string CMStatus::getControlled(const IUnit* unit) {
  return controlledLabel(stateOf(unit));
}

std::string CMStatus::getCheckedOut(const IUnit* unit) {
  return checkedOutLabel(stateOf(unit));
}

int CMStatus::getIsInvalid(const IUnit* unit) {
  return stateOf(unit) == CMState::Invalid ? 1 : 0;
}

int CMStatus::getCMStatusImgIndex(const IUnit* unit) {
  const std::int32_t state = stateOf(unit);
  // A project that shows the status shows it elsewhere: its icons say nothing, whatever the state.
  if (state != CMState::Invalid && CMProperty::getShowCMStatus() != 0) return 0;
  if (!has(state, CMState::Controlled)) return 1;
  if (has(state, CMState::Deleted)) return 6;
  if (has(state, CMState::CheckedOut)) return 5;
  if (has(state, CMState::OutOther)) return 4;
  return has(state, CMState::OutByUser) ? 0 : 2;
}

}  // namespace veldra
