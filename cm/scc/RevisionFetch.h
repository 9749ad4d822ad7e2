#pragma once

#include <functional>
#include <string>

#include "cm/core/UnitBatch.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Brings a file's archived revision to its place in the project; true on success, otherwise the
/// user has been told and the report ended.
using FetchToPlace = std::function<bool(const std::string& file, UnitReport& report)>;

/// Fetches the archived revision of a working file to another place and leaves the working file as
/// it was. Tools and providers fetch to the file's own place only; so the working file is set aside
/// under its name with "_temp" behind it for as long as the fetch takes. It comes back on every way
/// out, also when a provider crashes. `target` is a file, or an existing directory.
bool fetchBeside(const std::string& file, const std::string& target, const FetchToPlace& fetch,
                 UnitReport& report);

/// The same by `SccGetTo` where the provider has it, else by `SccGet`. Then a file of which the
/// archive has a newer version is refused: after the get the provider would take what came back for
/// changes to that newer version.
bool fetchBesideByProvider(IUnit* unit, const std::string& file, const std::string& target,
                           UnitReport& report);

/// Gets the archived revision of a file to its place.
bool fetchInPlace(IUnit* unit, const std::string& file, UnitReport& report);

}  // namespace veldra
