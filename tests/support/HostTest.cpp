#include "tests/support/HostTest.h"

#include <sstream>

#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"

namespace veldra::test {

HostTest::HostTest() {
  m_host.files.makeDirectory("/start");
  installHost(&m_host);
  set(IPN::CMTool, Tool, IPN::General);
}

HostTest::~HostTest() {
  installHost(nullptr);
}

void HostTest::set(const std::string& name, const std::string& value,
                   const std::string& metaclass) {
  m_project.attachProperty(IPN::CM, metaclass, std::make_unique<MemoryProperty>(name, value));
}

void HostTest::unset(const std::string& name, const std::string& metaclass) {
  m_project.component.properties().erase(IPN::CM, metaclass, name);
}

std::string HostTest::get(const std::string& name, const std::string& metaclass) {
  const IProperty* property = m_project.findProperty(IPN::CM, metaclass, name, false);
  return property != nullptr ? property->getValue() : "(missing)";
}

std::vector<std::string> HostTest::windowLines(std::string_view text) const {
  std::vector<std::string> lines;
  std::istringstream stream(window());
  for (std::string line; std::getline(stream, line);)
    if (line.find(text) != std::string::npos) lines.push_back(line);
  return lines;
}

void HostTest::useProvider(const std::string& providerName) {
  set("UseSCCtool", "YES", IPN::General);
  CMProperty::setSCCToolName(providerName);
  CMProperty::useSccCompliantTool();
}

}  // namespace veldra::test
