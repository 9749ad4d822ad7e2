#pragma once

#include <string>

#include "cm/scc/SccInterface.h"

namespace veldra {

/// Collects the files that the provider knows.
class SCCPopListFunc {
 public:
  /// The callback for `SccPopulateList`: appends the file to `CMProperty::getFileNamesList` unless
  /// it is there or the filter rejects it. Always 1, go on.
  static scc::BOOL SCC_CALL InternalPopListFunc(scc::LPVOID data, scc::BOOL addKeep,
                                                scc::LONG status, scc::LPSTR fileName);

  /// Whether a file of the archive is listed: of the files that carry the project's name only the
  /// project's own, unless all are wanted.
  static bool isListed(const std::string& fileName);
};

}  // namespace veldra
