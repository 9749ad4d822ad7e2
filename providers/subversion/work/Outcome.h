#pragma once

#include "cm/scc/interface/SccResults.h"

namespace veldra::subversion {

/// The result of a command on many files: success only when all succeeded, else the last error.
class Outcome {
 public:
  void add(scc::SCCRTN result) {
    if (result != scc::SCC_OK) m_result = result;
  }
  scc::SCCRTN result() const { return m_result; }

 private:
  scc::SCCRTN m_result = scc::SCC_OK;
};

}  // namespace veldra::subversion
