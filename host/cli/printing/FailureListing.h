#pragma once

#include <ostream>
#include <string>

#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// Units that came to nothing, one after another, with what there is to say about each. What holds
/// for many of them in a row, such as an archive that is not there, is told with the first one.
class FailureListing {
 public:
  explicit FailureListing(std::ostream& out) : m_out(out) {}
  void add(const UnitRecord& unit);

 private:
  std::ostream& m_out;
  std::string m_lastReason;
};

}  // namespace veldra::host::cli
