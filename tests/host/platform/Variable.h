#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "host/platform/Program.h"

namespace veldra::host {

/// Sets a variable for one test and puts it back.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : m_name(name) {
    if (const char* old = std::getenv(name)) m_old = old;
    setVariable(name, value.c_str());
  }
  ~Variable() { setVariable(m_name, m_old ? m_old->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* m_name;
  std::optional<std::string> m_old;
};

}  // namespace veldra::host
