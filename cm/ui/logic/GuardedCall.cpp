#include "cm/ui/logic/GuardedCall.h"

#include <exception>

#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/OutputFlush.h"

namespace veldra {

std::optional<int> guardedCall(const std::function<int()>& call) {
  if (CMProperty::getUseSCCtool() == 0) flushCommandOutput();
  std::optional<int> result;
  try {
    guardFaults([&] { result = call(); });
  } catch (const std::exception& fault) {
    result.reset();
    VELDRA_TRACE("The command ended with a fault: ", fault.what());
  }
  flushCommandOutput();
  return result;
}

bool guardedCall(ItemCommandFunction function, CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) {
  return guardedCall([&] { return function(items, arguments, diagnostics); }).value_or(0) != 0;
}

}  // namespace veldra
