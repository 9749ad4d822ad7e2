#pragma once

#include "host/platform/win32/SystemHandle.h"

namespace veldra::host {

/// A request to stop, raised from another thread, that a wait for several things can include.
class CancelSignal {
 public:
  void raise() noexcept { SetEvent(m_event.get()); }
  void clear() noexcept { ResetEvent(m_event.get()); }
  bool isRaised() const noexcept { return WaitForSingleObject(m_event.get(), 0) == WAIT_OBJECT_0; }
  HANDLE event() const { return m_event.get(); }

 private:
  SystemHandle m_event{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

}  // namespace veldra::host
