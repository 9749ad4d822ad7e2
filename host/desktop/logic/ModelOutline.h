#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/desktop/commands/ArchiveStatus.h"
#include "host/model/Project.h"

namespace veldra::host::desktop {

/// What a person may do with a unit's file.
enum class Access { ReadOnly, ReadWrite, Stub, NoFile };

/// One line of the model tree. It is a copy, so that painting never touches a unit that a running
/// command replaces.
struct OutlineNode {
  std::string file{};  ///< Absolute; empty for a package without a file.
  std::string path{};  ///< Relative to the project; its folder for a package without a file.
  std::string name{};
  std::string type{};
  std::string version{};
  std::string locker{};
  std::string status{};  ///< Where it stands in the provider's words; empty when nobody asked.
  Access access = Access::NoFile;
  bool isModified = false;
  bool isOutsideArchive = false;  ///< The archive is known not to hold the file.
  bool isHeldByOther = false;     ///< Somebody else has it out.
  bool isControlledFile = false;
  OutlineNode* parent = nullptr;
  std::size_t row = 0;  ///< In its parent.
  std::vector<std::unique_ptr<OutlineNode>> children{};
};

/// The project with all its units as they are now, and who holds them as far as `archive` knows.
/// The module must have a host, for what the CM headers say.
std::unique_ptr<OutlineNode> outlineOf(Project& project, const ArchiveStatus& archive);

/// The unit of a line, or null when it is gone or has no file.
UnitCore* unitOf(Project& project, const OutlineNode& node);

/// The line itself and the lines below it that have a file, in the order shown, as units.
void collectUnits(Project& project, const OutlineNode& node, bool withDescendants, UnitList& units);

}  // namespace veldra::host::desktop
