#pragma once

#include <ostream>

namespace veldra {

/// A window of the host's toolkit; the module only passes it along.
class IWindow {
 public:
  virtual ~IWindow() = default;
  virtual bool isEnabled() const = 0;
  virtual IWindow* lastActivePopup() = 0;
  /// What the system knows the window by, for programs that want to open dialogs above it; null
  /// when there is no such thing.
  virtual void* nativeHandle() const { return nullptr; }
};

/// The host's CM manager: the CM output window and what the host is told about running commands.
class IAbstractCMManager {
 public:
  virtual ~IAbstractCMManager() = default;
  /// The stream behind the CM output window, or null when there is no window.
  virtual std::ostream* getOutputStream() = 0;
  /// The CM output window itself, or null.
  virtual IWindow* outputWindow() { return nullptr; }
  virtual void clearOutputWindow() = 0;
  /// Told 1 when a CM operation begins.
  virtual void setCMOperationRunning(int running) { (void)running; }
  /// Told 1 when output of a CM operation follows, so that the window can be shown.
  virtual void setCMOutputFollows(int follows) { (void)follows; }
};

}  // namespace veldra
