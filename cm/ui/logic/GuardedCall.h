#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"

namespace veldra {

/// What `body` throws, in words; nothing when it ends by itself.
VELDRA_CM_EXPORT std::optional<std::string> thrownBy(const std::function<void()>& body);

/// Runs a call of the facade with the CM output flushed around it; before it only when a command
/// line is run. Nothing when a fault of the host or a provider ended it; then `diagnostics` says
/// so, and what the call left behind has been put in order.
VELDRA_CM_EXPORT std::optional<int> guardedCall(const std::function<int()>& call,
                                                DiagnosticList& diagnostics);

using ItemCommandFunction = int (*)(CMArchiveItemList&, ArgumentList&, DiagnosticList&);

/// The same for a facade function on archive items; false when it reported failure, too.
bool guardedCall(ItemCommandFunction function, CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics);

}  // namespace veldra
