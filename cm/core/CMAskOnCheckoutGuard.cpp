#include "cm/core/CMAskOnCheckoutGuard.h"

#include "cm/core/ModuleState.h"

namespace veldra {

CMAskOnCheckoutGuard::CMAskOnCheckoutGuard() {
  ++moduleState().checkoutGuards;
}

CMAskOnCheckoutGuard::CMAskOnCheckoutGuard(const std::string& answer) : CMAskOnCheckoutGuard() {
  moduleState().rememberedAnswer = answer;
}

CMAskOnCheckoutGuard::CMAskOnCheckoutGuard(const CMAskOnCheckoutGuard& /*other*/)
    : CMAskOnCheckoutGuard() {}

CMAskOnCheckoutGuard::~CMAskOnCheckoutGuard() {
  ModuleState& state = moduleState();
  if (state.checkoutGuards > 0) --state.checkoutGuards;
  if (state.checkoutGuards == 0) state.rememberedAnswer.clear();
}

}  // namespace veldra
