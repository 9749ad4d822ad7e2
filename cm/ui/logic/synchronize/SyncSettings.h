#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// How the user synchronizes, as the project remembers it: by what the CM headers say, or by a
/// label.
struct VELDRA_CM_EXPORT SyncSettings {
  bool byLabel = false;  ///< "Synchronize_Method" is "label" and not "Header".
  std::string label;

  static SyncSettings read();
  /// The label by which units are taken over; empty when the CM headers decide.
  std::string labelInUse() const { return byLabel ? label : std::string(); }
  /// Stores both in the project as far as it has such properties; the host's undo does not see it.
  void write() const;
};

}  // namespace veldra
