#pragma once

#include <cstdint>
#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// While one of these lives, a yes-to-all or no-to-all answer to the overwrite question holds for
/// the units that follow. Guards nest; the end of the outermost one forgets the answer.
class VELDRA_CM_EXPORT CMAskOnCheckoutGuard {
 public:
  CMAskOnCheckoutGuard();
  /// The question has been answered already, by "yestoall" or "notoall".
  explicit CMAskOnCheckoutGuard(const std::string& answer);
  // Copies count too: each of them is destroyed one day.
  CMAskOnCheckoutGuard(const CMAskOnCheckoutGuard&);
  CMAskOnCheckoutGuard& operator=(const CMAskOnCheckoutGuard&) { return *this; }
  virtual ~CMAskOnCheckoutGuard();
};

}  // namespace veldra
