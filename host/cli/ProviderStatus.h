#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/cli/Session.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// Asks the source control provider of the project where each unit stands and who has it out;
/// `records` are those of `units`, in their order. Nothing on success, also in a project that uses
/// no provider; otherwise why the provider could not be asked.
[[nodiscard]] std::optional<std::string> takeFromProvider(Session& session, const UnitList& units,
                                                          std::vector<UnitRecord>& records);

}  // namespace veldra::host::cli
