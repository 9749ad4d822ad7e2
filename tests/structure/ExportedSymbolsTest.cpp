#include "tests/structure/ExportedSymbols.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::test {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ExportedSymbolsTest, TheLibraryExportsWhatIsMarkedAndNothingElse) {
  const ExportMarks marks = readExportMarks(fs::path(VELDRA_SOURCE_DIR) / "cm");
  EXPECT_THAT(marks.classes, Contains("CMFacade"));
  EXPECT_THAT(marks.functions, Contains("installHost"));
  const std::vector<std::string> names = exportedNames(VELDRA_LIBRARY);
  EXPECT_THAT(unmarkedNames(names, marks), IsEmpty());
  EXPECT_THAT(missingNames(names, marks), IsEmpty());
}

TEST(ExportedSymbolsTest, MarksAreReadFromHeaders) {
  const host::TempDirectory folder;
  folder.write("Some.h",
               "#define VELDRA_CM_EXPORT something(x)\n"
               "class VELDRA_CM_EXPORT Door : public Base {\n"
               "class Inner {\n"
               "  VELDRA_CM_EXPORT std::vector<int> open(Key (*key)());\n"
               "void hidden();\n");
  const ExportMarks marks = readExportMarks(folder.path());
  EXPECT_THAT(marks.classes, ElementsAre("Door"));
  EXPECT_THAT(marks.functions, ElementsAre("open"));
}

TEST(ExportedSymbolsTest, PlantedNamesAreFound) {
  const ExportMarks marks{{"Door"}, {"open"}};
  const std::vector<std::string> good{
      "veldra::Door::knock(int)",  "veldra::Door::~Door()",
      "typeinfo for veldra::Door", "typeinfo name for veldra::Door",
      "vtable for veldra::Door",   "veldra::open(std::string const&)",
      "veldra::open[abi:cxx11]()"};
  EXPECT_THAT(unmarkedNames(good, marks), IsEmpty());
  const std::vector<std::string> bad{
      "veldra::Doorbell::ring()",
      "veldra::close()",
      "veldra::Door(int)",
      "veldra::open::inner()",
      "vtable for veldra::ModuleState",
      "veldra::host::Door::knock()",
      "open(int)",
      "void veldra::Door::knock<int>(int)",
      "std::vector<int, std::allocator<int> >::push_back(int const&)",
      "typeinfo for std::function<void ()>",
      "std::vector<veldra::Door, std::allocator<veldra::Door> >::~vector()"};
  EXPECT_EQ(unmarkedNames(bad, marks), bad);
  EXPECT_THAT(missingNames(bad, {{"Gate"}, {"lock"}}), ElementsAre("Gate", "lock"));
}

}  // namespace
}  // namespace veldra::test
