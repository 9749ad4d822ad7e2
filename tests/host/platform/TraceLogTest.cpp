#include "host/platform/TraceLog.h"

#include <gmock/gmock.h>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

TEST(TraceLog, addsOneLinePerCallWhateverTheText) {
  const TempDirectory directory;
  directory.write("trace.log", "earlier\n");
  std::string observed;
  TraceLog log(directory.file("trace.log"), [&](std::string_view line) { observed = line; });
  log.write(LogTrace::Log::Min, "two\r\nlines", "/some/where/Source.cpp", 42);
  const std::string text = directory.read("trace.log");
  EXPECT_EQ(text, "earlier\n" + observed + "\n");
  EXPECT_THAT(observed, MatchesRegex("....-..-.. ..:..:.. Source\\.cpp:42 two\\\\r\\\\nlines"));
  EXPECT_EQ(log.error(), "");
}

TEST(TraceLog, namesAFileThatCannotBeWritten) {
  const TempDirectory directory;
  TraceLog log(directory.path());
  EXPECT_THAT(log.error(), HasSubstr(directory.path()));
  log.write(LogTrace::Log::Min, "text", nullptr, 0);
}

TEST(TraceLog, anObserverThatThrowsDoesNotDisturb) {
  TraceLog log({}, [](std::string_view) { throw 1; });
  log.write(LogTrace::Log::Min, "text", "a.cpp", 1);
}

}  // namespace
}  // namespace veldra::host
