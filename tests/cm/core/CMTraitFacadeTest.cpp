#include "cm/core/CMTraitFacade.h"

#include "cm/host/IPN.h"
#include "tests/host/platform/TempDirectory.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class CMTraitFacadeTest : public HostTest {};

TEST_F(CMTraitFacadeTest, DefaultHeaderIsTheFileUpToTheEndMark) {
  const host::TempDirectory folder;
  folder.write("plain.hdr", "// $Id$\n// none\n");
  folder.write("marked.hdr", "// $Id$\xff\nnot this");
  folder.write("empty.hdr", "");
  struct Row {
    std::string setting;
    const char* header;
  };
  EXPECT_EQ(CMTraitFacade::getDefaultHeader(), "") << "there is no such setting";
  m_host.memoryEnvironment.root = folder.path();
  for (const Row& row : std::vector<Row>{{"$OMROOT/plain.hdr", "// $Id$\n// none\n"},
                                         {folder.file("marked.hdr"), "// $Id$"},
                                         {folder.file("empty.hdr"), ""},
                                         {folder.file("missing.hdr"), ""},
                                         {folder.path(), ""},
                                         {"/dev/zero", ""},
                                         {"", ""}}) {
    SCOPED_TRACE(row.setting);
    set(IPN::CMHeaderFile, row.setting);
    IBaseCMFacade& facade = CMTraitFacade::instance();
    EXPECT_EQ(facade.getTheDefaultHeader(), row.header);
  }
}

TEST_F(CMTraitFacadeTest, VersionAndLockerComeOutOfTheHeader) {
  struct Row {
    const char* header;
    const char* version;
    const char* locker;
    const char* echo;
  };
  MemoryUnit& unit = m_model.addUnit("Engine.vcl");
  set(IPN::CMHeaderItsVersion, "Rev: (\\S+)");
  set(IPN::CMHeaderItsLocker, "Locker: (\\S+)");
  for (const Row& row : std::vector<Row>{
           {"Rev: 1.7 Locker: ada", "1.7", "ada", "+++ version: '1.7'\n+++ Locker: 'ada'\n"},
           {"no such thing", "", "",
            "+++ Failed to match 'Rev: (\\S+)' in 'no such thing'\n+++ \n"
            "+++ Failed to match 'Locker: (\\S+)' in 'no such thing'\n+++ \n"},
           {"", "", "", ""}}) {
    SCOPED_TRACE(row.header);
    unit.record.header = row.header;
    m_host.manager.window.str("");
    debugTraces();
    EXPECT_EQ(CMTraitFacade::getVersion(&unit), row.version);
    EXPECT_EQ(CMTraitFacade::getLocker(&unit), row.locker);
    EXPECT_EQ(window(), row.echo);
    m_host.memoryEnvironment.settings.clear();
    EXPECT_EQ(CMTraitFacade::getOwner(&unit), row.locker);
    EXPECT_EQ(window(), row.echo) << "only with the setting";
  }
}

}  // namespace
}  // namespace veldra::test
