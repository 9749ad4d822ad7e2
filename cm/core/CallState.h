#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// What the module holds for the length of a call. A processor fault that the host's guard turned
/// into an exception leaves the call without its destructors; this puts back what they would have.
class VELDRA_CM_EXPORT CallState {
 public:
  /// Remembers how things stand before the call.
  CallState();
  /// After a fault: ends the transactions that were left open, and goes back to the directory. Does
  /// nothing that is visible after a call that ended by itself.
  void restore() const;

 private:
  std::size_t m_transcations;
  std::size_t m_openUndos;
  std::uint32_t m_checkoutGuards;
  std::string m_directory;
};

}  // namespace veldra
