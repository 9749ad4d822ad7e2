#pragma once

#include <ostream>
#include <string>

#include "cm/host/Export.h"
#include "cm/host/IAbstractCMManager.h"

namespace veldra {

/// Writes to the CM output window.
class VELDRA_CM_EXPORT CMOutputer {
 public:
  /// The stream of the CM output window; null when there is no window.
  std::ostream*& operator()();

  /// Writes an empty line, the text and a line end; nothing for an empty text.
  static void writeToCMOutputWnd(const std::string& text);
  /// Reports a file that could not be loaded where the setting "ReportLoadingError" says.
  static void reportLoadingErrror(const std::string& message);
  /// The window itself when it is enabled, else its last active pop-up.
  static IWindow* getTopMostWindow(IWindow* window);
};

VELDRA_CM_EXPORT CMOutputer& getMainCMOutputer();

}  // namespace veldra
