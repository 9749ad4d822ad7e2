#include <filesystem>

#include "tests/host/platform/ProcessesTest.h"
#include "tests/host/platform/TempDirectory.h"

// The program itself, with a version-control tool that only copies: the archive is a folder.

namespace veldra::host {
namespace {

using testing::HasSubstr;

class MainJobTest : public ProcessesTest {
 protected:
  MainJobTest() {
    m_processes.setChildEnvironment({{"VELDRA_USER", m_folder.file("user.toml")},
                                     {"VELDRA_MACHINE_REGISTRY", m_folder.file("machine.toml")},
                                     {"VELDRA_USER_REGISTRY", m_folder.file("registry.toml")},
                                     {"TMPDIR", m_folder.path()}});
    m_folder.write("user.toml", settings());
    std::filesystem::create_directory(m_folder.file("model"));
    m_folder.write("model/Pump.mo", "model Pump\nend Pump;\n");
  }

  /// Literal strings of TOML keep backslashes; a template's quotes are those of command lines.
  std::string settings() const {
    const std::string tool = std::string("\"") + VELDRA_TEST_CHILD + "\" ";
    const std::string archived = "\"" + m_folder.file("archive/$Unit") + "\" ";
    const std::string toArchive = tool + "copy \"$UnitPath\" " + archived;
    const std::string fromArchive = tool + "copy " + archived + "\"$UnitPath\" ";
    return "[ConfigurationManagement.General]\nCMTool = 'Copier'\n"
           "[ConfigurationManagement.Copier]\n"
           "AddMember = '" +
           toArchive +
           "forbid-writing \"$UnitPath\"'\n"
           "CheckIn = '" +
           toArchive + "forbid-writing \"$UnitPath\" copy $logFile \"" + m_folder.file("comment") +
           "\"'\n"
           "CheckOut = '" +
           fromArchive +
           "allow-writing \"$UnitPath\"'\n"
           "UnCheckOut = '" +
           fromArchive +
           "forbid-writing \"$UnitPath\"'\n"
           "Lock = '" +
           tool +
           "err refused exit 3'\n"
           "Archive = ''\nConnectToCMRepository = '" +
           tool + "touch \"" + m_folder.file("connected") +
           "\"'\n"
           "History = '" +
           tool +
           "out \"$Unit was drawn\"'\n"
           "ListArchive = '" +
           tool +
           "out Pump.mo|7|ro|'\n"
           "MultiRecordDelimiter = '\\n(?=.)'\n"
           "ListArchiveItsWorkingFile = '^([^|]*)\\|'\n"
           "ListArchiveItsVersion = '^[^|]*\\|([^|]*)'\n";
  }

  Outcome cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {VELDRA_CM_PROGRAM, "-p", m_folder.file("model")});
    return run(joinCommandLine(arguments));
  }

  void done(const std::vector<std::string>& arguments) {
    const Outcome outcome = cm(arguments);
    EXPECT_EQ(outcome.end, ProcessEnd::Exited);
    EXPECT_EQ(outcome.code, 0) << arguments.front() << ": " << outcome.output << outcome.errors;
  }

  bool isWritable(const std::string& name) const {
    namespace fs = std::filesystem;
    return (fs::status(m_folder.file(name)).permissions() & fs::perms::owner_write) !=
           fs::perms::none;
  }

  const TempDirectory m_folder;
};

TEST_F(MainJobTest, aUnitGoesToTheArchiveAndBack) {
  const std::string unit = "model/Pump.mo";
  done({"init", m_folder.file("model"), "--name", "Plant"});
  done({"connect", "--archive", m_folder.file("archive")});
  EXPECT_TRUE(std::filesystem::exists(m_folder.file("connected")));
  done({"add", "Pump.mo", "-m", "As drawn"});
  EXPECT_EQ(m_folder.read("archive/Pump.mo"), m_folder.read(unit));
  EXPECT_FALSE(isWritable(unit));
  done({"checkout", "Pump.mo"});
  EXPECT_TRUE(isWritable(unit));
  m_folder.write(unit, "model Pump\r\nend Pump;\r\n");
  done({"checkin", "Pump.mo", "-m", "Finer: 100% \xC3\xA4 \"quoted\" > all"});
  EXPECT_EQ(m_folder.read("archive/Pump.mo"), "model Pump\r\nend Pump;\r\n");
  EXPECT_EQ(m_folder.read("comment"), "Finer: 100% \xC3\xA4 \"quoted\" > all");
  EXPECT_FALSE(isWritable(unit));
  EXPECT_THAT(cm({"history", "Pump.mo"}).output, HasSubstr("Pump.mo was drawn"));
  EXPECT_THAT(cm({"ls"}).output, testing::AllOf(HasSubstr("Pump.mo"), HasSubstr("7")));
  const Outcome failed = cm({"lock", "Pump.mo"});
  EXPECT_EQ(failed.code, 3);
  EXPECT_THAT(failed.errors, HasSubstr("refused"));
  EXPECT_THAT(cm({"--json", "status"}).output, HasSubstr("Pump"));
}

TEST_F(MainJobTest, aBrokenUnitIsToldByCommandsThatLookAtUnits) {
  done({"init", m_folder.file("model"), "--name", "Plant"});
  m_folder.write("model/Broken.vcmp", "no unit");
  for (const char* command : {"checkout", "add"}) {
    EXPECT_THAT(cm({"--dry-run", command, "Pump.mo"}).errors, HasSubstr("Broken.vcmp")) << command;
  }
  EXPECT_EQ(cm({"ls"}).errors, "");
  EXPECT_EQ(cm({"property", "get", "CMTool"}).errors, "");
}

TEST_F(MainJobTest, aUnitWhosePathIsLongGoesToTheArchiveAndBack) {
  std::string unit = "Deep.mo";
  while (m_folder.file("model/" + unit).size() < 300) unit.insert(0, std::string(60, 'p') + '/');
  const std::string file = m_folder.file("model/" + unit);
  std::filesystem::create_directories(std::filesystem::path(file).parent_path());
  m_folder.write("model/" + unit, "model Deep\nend Deep;\n");
  done({"init", m_folder.file("model"), "--name", "Plant"});
  done({"connect", "--archive", m_folder.file("archive")});
  done({"add", file, "-m", "As drawn"});
  EXPECT_FALSE(isWritable("model/" + unit));
  done({"checkout", unit});
  m_folder.write("model/" + unit, "model Deep\n  Real depth;\nend Deep;\n");
  done({"checkin", unit, "-m", "Deeper"});
  EXPECT_EQ(m_folder.read("archive/Deep.mo"), m_folder.read("model/" + unit));
  EXPECT_THAT(m_folder.read("archive/Deep.mo"), HasSubstr("depth"));
  EXPECT_FALSE(isWritable("model/" + unit));
}

TEST_F(MainJobTest, aProviderIsInstalledAndChosenByTheProgram) {
  done({"init", m_folder.file("model"), "--name", "Plant"});
  done({"provider", "install", VELDRA_RECORDING_PROVIDER});
  EXPECT_THAT(cm({"provider", "list"}).output, HasSubstr(std::string("* ")));
  done({"property", "set", "General.UseSCCtool", "Yes"});
  done({"property", "set", "SCC.CommentsRequiredForCheckIn", "True"});
  const Outcome refused = cm({"checkin", "Pump.mo"});
  EXPECT_EQ(refused.code, 2);
  EXPECT_THAT(refused.errors, HasSubstr("needs a comment"));
}

}  // namespace
}  // namespace veldra::host
