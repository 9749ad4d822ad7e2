#include "host/platform/Registry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace veldra::host {
namespace {

class RegistryTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "registry-XXXXXX";
    m_folder = mkdtemp(name.data());
  }
  void TearDown() override { std::filesystem::remove_all(m_folder); }

  RegistryPlaces places() const { return {m_folder + "/machine.toml", m_folder + "/a/user.toml"}; }

  static void put(const std::string& file, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file) << text;
  }

  std::string m_folder;
};

TEST_F(RegistryTest, UsersValueWinsOverTheMachines) {
  put(places().machine, "['Software\\A']\nname = 'machine'\nonly = 'here'\nnumber = 1\n");
  put(places().user, "['SOFTWARE\\a']\nNAME = 'user'\n");
  Registry registry(places());
  EXPECT_EQ(registry.localMachineText("Software\\A", "Name"), "user");
  EXPECT_EQ(registry.localMachineText("software\\a", "ONLY"), "here");
  EXPECT_EQ(registry.localMachineText("Software\\A", "number"), "1");
  EXPECT_EQ(registry.localMachineText("Software\\A", "missing"), std::nullopt);
  EXPECT_EQ(registry.localMachineText("Software", "Name"), std::nullopt);
  EXPECT_EQ(registry.localMachineText(std::string("Software\\A\0", 11), "Name"), std::nullopt);
}

TEST_F(RegistryTest, WhatIsWrittenIsReadAgain) {
  RegistryFile file;
  file.keys["Software\\X"]["path"] = "C:\\a \"b\"'c'\n%s";
  file.keys["Software\\X"]["\xC3\xA4 key"] = "";
  ASSERT_EQ(file.write(places().user), std::nullopt);
  const Result<RegistryFile> again = RegistryFile::read(places().user);
  ASSERT_TRUE(again) << again.error();
  EXPECT_EQ(again->keys, file.keys);
}

TEST_F(RegistryTest, DamagedFileIsNamedAndHidesOnlyItself) {
  put(places().user, "['Software\\A']\nname = \n");
  put(places().machine, "['Software\\A']\nname = 'machine'\n");
  Registry registry(places());
  EXPECT_EQ(registry.localMachineText("Software\\A", "name"), "machine");
  ASSERT_TRUE(registry.problem());
  EXPECT_NE(registry.problem()->find("user.toml, line 2"), std::string::npos);
}

}  // namespace
}  // namespace veldra::host
