#pragma once

#include <string>
#include <vector>

#include "host/cli/Session.h"

namespace veldra::host::cli {

/// One thing that was looked at.
struct DoctorCheck {
  std::string name;
  bool isFine = true;
  std::string finding{};
  std::string advice{};  ///< What to do; only where something is wrong.
};

using DoctorChecks = std::vector<DoctorCheck>;

/// The tool itself: its pack, its program and version, language, lock policy.
DoctorChecks checkTool(Session& session, const std::string& tool);

/// What the open project says of its archive, and what may be done there.
DoctorChecks checkProject(Session& session);

/// Takes a unit through the whole job, with a project and an archive made for that and removed
/// again. The steps are commands of this very program, so no session may be open.
DoctorChecks checkRoundTrip(const std::string& tool, std::string tempDirectory);

}  // namespace veldra::host::cli
