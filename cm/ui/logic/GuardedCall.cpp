#include "cm/ui/logic/GuardedCall.h"

#include <exception>

#include "cm/core/CallState.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/OutputFlush.h"

namespace veldra {

std::optional<std::string> thrownBy(const std::function<void()>& body) {
  try {
    body();
  } catch (const std::exception& fault) {
    return fault.what();
  } catch (...) {
    return "something that is no exception was thrown";
  }
  return std::nullopt;
}

std::optional<int> guardedCall(const std::function<int()>& call, DiagnosticList& diagnostics) {
  if (CMProperty::getUseSCCtool() == 0) flushCommandOutput();
  const CallState before;
  std::optional<int> result;
  const auto fault = thrownBy([&] { guardFaults([&] { result = call(); }); });
  if (fault) {
    result.reset();
    before.restore();
    VELDRA_TRACE("The command ended with a fault: ", *fault);
    diagnostics.emplace_back(CMDiagnostic::Failed, formatMessage(MessageId::CommandFault, {*fault}),
                             nullptr);
  }
  flushCommandOutput();
  return result;
}

bool guardedCall(ItemCommandFunction function, CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) {
  return guardedCall([&] { return function(items, arguments, diagnostics); }, diagnostics)
             .value_or(0) != 0;
}

}  // namespace veldra
