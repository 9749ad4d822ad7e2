#include "host/platform/LibraryFormat.h"

#include <gmock/gmock.h>

#include "tests/host/platform/LibraryHead.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

constexpr unsigned Bits32 = 0x014C;

TEST(LibraryFormat, aLibraryForAnotherProcessorIsNamedWithTheReason) {
  const auto problem = foreignLibraryProblem("C:\\p.dll", libraryHead(Bits32));
  ASSERT_TRUE(problem);
  EXPECT_THAT(*problem, HasSubstr("'C:\\p.dll' was made for 32-bit programs"));
  EXPECT_THAT(*problem, HasSubstr("Install the edition of it for 64-bit programs"));
  EXPECT_TRUE(foreignLibraryProblem("p", libraryHead(0x0200)));
}

TEST(LibraryFormat, whatCannotBeToldIsNoProblem) {
  const std::string head = libraryHead(Bits32);
  for (std::size_t length = 0; length < head.size(); ++length) {
    EXPECT_EQ(foreignLibraryProblem("p", head.substr(0, length)), std::nullopt) << length;
  }
  std::string outside = head;
  outside[0x3F] = '\x7F';
  EXPECT_EQ(foreignLibraryProblem("p", outside), std::nullopt);
  EXPECT_EQ(foreignLibraryProblem("p", std::string(200, 'x')), std::nullopt);
}

}  // namespace
}  // namespace veldra::host
