#pragma once

#include <windows.h>

#include <utility>

namespace veldra::host {

/// Owns a handle of the system's and closes it.
class SystemHandle {
 public:
  explicit SystemHandle(HANDLE handle = nullptr) : m_handle(handle) {}
  ~SystemHandle() { reset(); }
  SystemHandle(SystemHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  SystemHandle& operator=(SystemHandle&& other) noexcept {
    if (this != &other) reset(std::exchange(other.m_handle, nullptr));
    return *this;
  }

  /// Some functions answer null, others INVALID_HANDLE_VALUE, when there is none.
  explicit operator bool() const { return m_handle != nullptr && m_handle != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return m_handle; }

  void reset(HANDLE handle = nullptr) {
    if (*this) CloseHandle(m_handle);
    m_handle = handle;
  }

 private:
  HANDLE m_handle;
};

}  // namespace veldra::host
