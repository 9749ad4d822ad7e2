#include "tests/structure/IncludeRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::Gt;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(StructureTest, TheTreeKeepsItsIncludeRules) {
  const std::vector<Include> includes = readIncludes(VELDRA_SOURCE_DIR, {"cm", "host"});
  ASSERT_THAT(includes, SizeIs(Gt(300U))) << "the tree was not read";
  EXPECT_THAT(forbiddenIncludes(includes), IsEmpty());
  EXPECT_THAT(includeCircles(includes), IsEmpty());
}

/// A small tree with one fault at a time.
class PlantedTreeTest : public ::testing::Test {
 protected:
  PlantedTreeTest() {
    write("cm/host/IUnit.h", "#include <string>\n");
    write("cm/core/CMUnit.h", "#include \"cm/host/IUnit.h\"\n");
    write("cm/tool/CMCheckIn.h", "#include \"cm/core/CMUnit.h\"\n");
    write("cm/ui/CCMDlg.cpp", "#include <QDialog>\n#include \"cm/tool/CMCheckIn.h\"\n");
    write("host/model/Project.h", "#include \"cm/host/IUnit.h\"\n#include <nlohmann/json.hpp>\n");
    write("host/platform/posix/Files.cpp", "#include <unistd.h>\n#include <sys/stat.h>\n");
    write("host/platform/win32/Files.cpp", "#include <windows.h>\n");
  }

  void write(const std::string& file, const std::string& text) const {
    fs::create_directories((m_root / file).parent_path());
    std::ofstream(m_root / file) << text;
  }
  std::vector<Include> includes() const { return readIncludes(m_root, {"cm", "host"}); }

  host::TempDirectory m_directory;
  fs::path m_root = m_directory.path();
};

TEST_F(PlantedTreeTest, AnOrderlyTreeHasNoFaults) {
  EXPECT_THAT(includes(), SizeIs(10));
  EXPECT_THAT(forbiddenIncludes(includes()), IsEmpty());
  EXPECT_THAT(includeCircles(includes()), IsEmpty());
}

TEST_F(PlantedTreeTest, EachForbiddenIncludeIsFound) {
  struct Row {
    const char* file;
    const char* line;
    const char* reason;
  };
  for (const Row& row : std::vector<Row>{
           {"cm/core/X.cpp", "#include \"host/model/Project.h\"", "nothing outside itself"},
           {"cm/ui/X.cpp", "#include \"host/model/Project.h\"", "nothing outside itself"},
           {"cm/core/X.h", "#include \"../../host/model/Project.h\"", "nothing outside itself"},
           {"cm/core/X.cpp", "  #  include <host/model/Project.h>", "standard library only"},
           {"cm/tool/X.cpp", "#include <QString>", "standard library only"},
           {"cm/templates/X.cpp", "#include <nlohmann/json.hpp>", "standard library only"},
           {"cm/scc/X.cpp", "#include <unistd.h>", "standard library only"},
           {"cm/core/X.cpp", "#include <stdlib.h>", "standard library only"},
           {"cm/core/X.cpp", "#include CONFIGURED_HEADER", "standard library only"},
           {"cm/ui/X.cpp", "#include <sys/stat.h>", "standard library and Qt only"},
           {"cm/core/X.cpp", "#include \"cm/tool/CMCheckIn.h\"", "cm/core keeps out of cm/tool"},
           {"cm/host/X.h", "#include \"cm/core/CMUnit.h\"", "cm/host keeps out of cm/core"},
           {"cm/core/X.cpp", "#include \"cm/core/Missing.h\"", "no such file"},
           {"host/model/X.cpp", "#include <unistd.h>", "operating-system headers"},
           {"host/platform/X.cpp", "#include <windows.h>", "operating-system headers"},
           {"host/cli/X.cpp", "#include <sys/ioctl.h>", "operating-system headers"}}) {
    SCOPED_TRACE(std::string(row.file) + ": " + row.line);
    write(row.file, std::string("// first\n") + row.line + "\n");
    const std::vector<std::string> found = forbiddenIncludes(includes());
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_THAT(found[0], HasSubstr(std::string(row.file) + ":2 includes "));
    EXPECT_THAT(found[0], HasSubstr(row.reason));
    fs::remove(m_root / row.file);
  }
}

TEST_F(PlantedTreeTest, CommentedIncludesDoNotCount) {
  write("cm/core/X.cpp", "// #include <unistd.h>\n/// see #include \"host/model/Project.h\"\n");
  EXPECT_THAT(forbiddenIncludes(includes()), IsEmpty());
}

TEST_F(PlantedTreeTest, CirclesAreFoundWhateverTheirLength) {
  write("host/model/A.h", "#include \"B.h\"\n");
  write("host/model/B.h", "#include \"host/model/C.h\"\n");
  write("host/model/C.h", "#include \"../model/A.h\"\n");
  EXPECT_THAT(includeCircles(includes()),
              ElementsAre("host/model/A.h -> host/model/B.h -> host/model/C.h -> host/model/A.h"));
  write("host/model/C.h", "#include \"host/model/C.h\"\n");
  EXPECT_THAT(includeCircles(includes()), ElementsAre("host/model/C.h -> host/model/C.h"));
  write("host/model/C.h", "#include \"cm/host/IUnit.h\"\n");
  EXPECT_THAT(includeCircles(includes()), IsEmpty());
}

}  // namespace
}  // namespace veldra::test
