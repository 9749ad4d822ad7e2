#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/MemoryHost.h"

namespace veldra::test {

using Lines = std::vector<std::string>;

/// A fresh in-memory host with an open project "Plant.vdy" in "/plan" whose command-line tool is
/// "Tool". Packages and classes are added by the tests.
class HostTest : public ::testing::Test {
 protected:
  static constexpr char Tool[] = "Tool";

  HostTest();
  ~HostTest() override;

  /// Sets a property of the project, in the tool's metaclass unless another one is named.
  void set(const std::string& name, const std::string& value, const std::string& metaclass = Tool);
  void unset(const std::string& name, const std::string& metaclass = Tool);
  /// The effective value on the project; "(missing)" when there is none.
  std::string get(const std::string& name, const std::string& metaclass = Tool);

  void debugTraces() { m_host.memoryEnvironment.settings[{"General", "DEBUG_CM"}] = "TRUE"; }
  std::string window() const { return m_host.manager.window.str(); }
  /// The lines of the output window that contain `text`.
  std::vector<std::string> windowLines(std::string_view text) const;
  /// Selects the provider back end, which gives that name for itself.
  void useProvider(const std::string& providerName = "");

  MemoryHost m_host;
  MemoryModel& m_model = m_host.memoryModel;
  MemoryProject& m_project = m_model.openProject("/plan", "Plant.vdy");
};

}  // namespace veldra::test
