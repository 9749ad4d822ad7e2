#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "cm/host/IPN.h"
#include "tests/support/MemoryHost.h"

namespace veldra::test {

/// An in-memory host with an open project, installed for as long as it lives.
class FuzzHost : public MemoryHost {
 public:
  FuzzHost() {
    installHost(this);
    m_project.attachProperty(IPN::CM, IPN::General,
                             std::make_unique<MemoryProperty>(IPN::CMTool, "Tool"));
  }
  ~FuzzHost() override { installHost(nullptr); }

  /// Sets a property of the project's tool.
  void setProperty(const std::string& name, const std::string& value) {
    m_project.attachProperty(IPN::CM, "Tool", std::make_unique<MemoryProperty>(name, value));
  }

 private:
  MemoryProject& m_project = memoryModel.openProject("/work", "Plant.vdy");
};

/// Cuts the bytes of one run into pieces at zero bytes.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : m_rest(data, data + size) {}

  /// The next piece; the last one runs to the end, and after it all are empty.
  std::string piece() {
    const std::size_t end = m_rest.find('\0');
    const std::string taken = m_rest.substr(0, end);
    m_rest.erase(0, end == std::string::npos ? end : end + 1);
    return taken;
  }

 private:
  std::string m_rest;
};

}  // namespace veldra::test
