#include "host/platform/Registry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "host/platform/RegistryPlace.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

class RegistryTest : public testing::Test {
 protected:
  RegistryPlaces places() const {
    return {m_folder.file("machine.toml"), m_folder.file("a/user.toml")};
  }

  static void put(const std::string& file, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file) << text;
  }

  const TempDirectory m_folder;
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

TEST_F(RegistryTest, ValuesAreAddedAndPresentOnesKeptOnRequest) {
  const std::string place = places().user;
  ASSERT_EQ(storeInRegistry(place, {{"Software\\X", "a", "1"}, {"Software\\X", "b", "1"}}),
            std::nullopt);
  ASSERT_EQ(storeInRegistry(place, {{"software\\x", "A", "2"}, {"Software\\X", "b", "2", true}}),
            std::nullopt);
  EXPECT_EQ(registryValues(place, "Software\\X"), (RegistryValues{{"A", "2"}, {"b", "1"}}));
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
