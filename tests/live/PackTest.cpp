#include "tests/live/PackTest.h"

#include "tests/live/Tool.h"

namespace veldra::live {

void PackTest::SetUp() {
  if (!isInstalled(makeTool(GetParam(), m_sandbox)->traits().program)) {
    GTEST_SKIP() << GetParam() << " is not installed";
  }
  m_sandbox.become("alice");
  m_sandbox.copySample("model");
  const Ended made = m_sandbox.cm(
      {"init", "model", "--name", "Machine", "--tool", GetParam(), "--archive", "archive"});
  ASSERT_EQ(made.code, 0) << made.err;
}

}  // namespace veldra::live
