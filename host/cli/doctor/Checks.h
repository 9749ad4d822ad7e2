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

/// A check that found a failure, told in the words of a command. Their last line may say what to
/// do; `otherwise` does when it does not.
DoctorCheck failedCheck(std::string name, const std::string& words, std::string otherwise);

/// The tool itself: its pack, its program and version, language, lock policy.
DoctorChecks checkTool(Session& session, const std::string& tool);

/// What the open project says of its archive, and what may be done there.
DoctorChecks checkProject(Session& session);

/// The provider that the open project works with: its library, and the archive behind it.
DoctorChecks checkProvider(Session& session);

/// Whether the archive can be listed. `place` is its name for the user; `asked` says who is asked,
/// "tool" or "provider".
DoctorCheck checkListing(Session& session, const std::string& place, const char* asked);

/// Why nothing may be started for the open project now; empty when it may, or none is open.
std::string whyNothingIsStarted(Session& session);

/// Takes a unit through the whole job, with a project and an archive made for that and removed
/// again. The steps are commands of this very program, so no session may be open.
DoctorChecks checkRoundTrip(const std::string& tool, std::string tempDirectory);

}  // namespace veldra::host::cli
