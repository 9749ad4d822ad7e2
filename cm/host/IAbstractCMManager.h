#pragma once

#include <ostream>

namespace veldra {

/// The host's CM manager: the CM output window and what the host is told about running commands.
class IAbstractCMManager {
 public:
  virtual ~IAbstractCMManager() = default;
  /// The stream behind the CM output window, or null when there is no window.
  virtual std::ostream* getOutputStream() = 0;
  virtual void clearOutputWindow() = 0;
  /// Told 1 when a CM operation begins.
  virtual void setCMOperationRunning(int running) { (void)running; }
  /// Told 1 when output of a CM operation follows, so that the window can be shown.
  virtual void setCMOutputFollows(int follows) { (void)follows; }
};

}  // namespace veldra
