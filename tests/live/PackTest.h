#pragma once

#include <gtest/gtest.h>

#include "tests/live/Sandbox.h"

namespace veldra::live {

/// The sample "Machine" in "model", connected to an archive of the tool of a pack, in alice's name.
class PackTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override;
  /// False when the tool is not installed, or the project could not be made.
  bool isReady() const { return !IsSkipped() && !HasFatalFailure(); }

  Sandbox m_sandbox;
};

}  // namespace veldra::live
