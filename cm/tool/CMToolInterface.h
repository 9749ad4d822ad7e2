#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// Runs finished command lines.
class VELDRA_CM_EXPORT CMToolInterface {
 public:
  /// Runs `command` in the CM working directory and waits for it.
  ///
  /// `output` gets what the child printed, `errorText` its error lines, its output when it ran out
  /// of time, or this module's own message. `workingDirectory` is ignored. Non-zero when the
  /// command could be run; whether it did what it should is told by the two texts and
  /// `lastCommandEnd`.
  virtual int Execute(const std::string& command, std::string& output, std::string& errorText,
                      std::string workingDirectory) = 0;

  // After the published function, so that it keeps the first place of the table.
  virtual ~CMToolInterface() = default;
};

}  // namespace veldra
