#pragma once

#include <functional>
#include <string>

#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The file of a unit, and of everything below it, in the directory of one side. Those below lie
/// there as they lie below the unit.
VELDRA_CM_EXPORT std::string fileInSide(const IUnit& unit, const IUnit& root,
                                        const std::string& side);

/// Writes the unit as it stands in the model into the directory. False when that failed; the user
/// has then been told.
VELDRA_CM_EXPORT bool saveUnitInto(IUnit& unit, const std::string& side);
/// The same with every unit below it that has a file and is loaded.
VELDRA_CM_EXPORT bool saveTreeInto(IUnit& root, const std::string& side);

/// Whether the tool's template of that name fetches to where it is told. One that says nothing of a
/// target would fetch over the working file.
VELDRA_CM_EXPORT bool fetchTakesTarget(const std::string& property);

/// Runs a call of the facade that is to bring a file. False when it failed, or the file did not
/// come: what another comparison left there is not taken for it.
VELDRA_CM_EXPORT bool bringsFile(const std::string& file, const std::function<int()>& fetch,
                                 DiagnosticList& diagnostics);

/// Fetches the archive's version of the unit into the directory. `label` is a label or version;
/// empty means the newest. The working file, with everything that was changed in it, stays as it
/// is. False when that failed; why is in the CM output and the diagnostics.
VELDRA_CM_EXPORT bool fetchVersionInto(IUnit& unit, const std::string& label,
                                       const std::string& side, DiagnosticList& diagnostics);
/// The same with every unit below it. Units that the archive does not have in that version are left
/// out; false when it has none of them.
VELDRA_CM_EXPORT bool fetchTreeInto(IUnit& root, const std::string& label, const std::string& side,
                                    DiagnosticList& diagnostics);

}  // namespace veldra
