#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// Which of the ways of working the dialogs serve, read from the active project's settings.
struct VELDRA_CM_EXPORT BackEndMode {
  bool usesProvider = false;
  bool isBranchTool = false;  ///< The branch/view tool, driven by commands.
  bool isNoTool = false;      ///< Driven by commands, and the CM tool is "None".

  static BackEndMode current();
};

/// Whether the project shows CM states that a provider can tell: two more columns and the refresh.
VELDRA_CM_EXPORT bool showsProviderStatus();

/// Why the branch/view tool cannot connect this project, as a message for the user: the project
/// holds controlled files. False, and `message` untouched, when nothing speaks against it.
VELDRA_CM_EXPORT bool ConnectingToVaultrixWithControlledFiles(std::string& message);

}  // namespace veldra
