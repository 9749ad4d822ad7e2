#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace veldra::host {

/// What a new file or folder is made with so that nobody but this user may use it, nor what is put
/// into it.
class PrivateAccess {
 public:
  PrivateAccess();

  /// For the system's functions; lives as long as this. Null when the system does not tell who the
  /// user is; what is made then has the rights of its folder.
  SECURITY_ATTRIBUTES* attributes() { return m_descriptor ? &m_attributes : nullptr; }

 private:
  struct Free {
    void operator()(void* descriptor) const { LocalFree(descriptor); }
  };
  std::unique_ptr<void, Free> m_descriptor;
  SECURITY_ATTRIBUTES m_attributes{};
};

}  // namespace veldra::host
