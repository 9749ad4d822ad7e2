#pragma once

#include <string>

namespace veldra {

/// One open context of the provider: what `SccInitialize` stored, and the archive project that it
/// was opened for.
class pvContextStruct {
 public:
  void* getpvContextPtr() const { return m_context; }
  /// For `SccInitialize`, which fills the pointer in.
  void** getpvContextPtrPtr() { return &m_context; }
  void setpvContextPtr(void* context) { m_context = context; }
  const std::string& getpvContextName() const { return m_name; }
  void setpvContextName(const std::string& name) { m_name = name; }

 private:
  void* m_context = nullptr;
  std::string m_name;
};

}  // namespace veldra
