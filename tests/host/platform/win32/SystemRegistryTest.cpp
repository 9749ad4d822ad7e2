#include <gmock/gmock.h>
#include <windows.h>

#include "host/cli/InstalledProviders.h"
#include "host/platform/Libraries.h"
#include "host/platform/RegistryPlace.h"

namespace veldra::host {
namespace {

constexpr char Providers[] = "Software\\SourceCodeControlProvider";
constexpr char Ours[] = "Software\\Veldra\\Test";

/// Takes away what a test has written.
class SystemRegistryTest : public testing::Test {
 protected:
  void TearDown() override {
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      for (const char* key : {Providers, Ours}) {
        RegDeleteTreeA(root, key);
        RegDeleteKeyA(root, key);
      }
    }
    HKEY view = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software", 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, &view) ==
        ERROR_SUCCESS) {
      RegDeleteTreeA(view, "Veldra");
      RegCloseKey(view);
    }
  }

  static void put(HKEY root, REGSAM view, const char* name, const std::string& bytes, DWORD type) {
    HKEY key = nullptr;
    ASSERT_EQ(
        RegCreateKeyExA(root, Ours, 0, nullptr, 0, KEY_ALL_ACCESS | view, nullptr, &key, nullptr),
        ERROR_SUCCESS);
    RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
    RegCloseKey(key);
  }

  Registry m_registry{systemRegistryPlaces()};
};

TEST_F(SystemRegistryTest, bothViewsAreReadAndTheUsersValueWins) {
  put(HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY, "a", "64", REG_SZ);
  put(HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY, "a", "32", REG_SZ);
  put(HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY, "only", "in 32", REG_SZ);
  EXPECT_EQ(m_registry.localMachineText(Ours, "A"), "64");
  EXPECT_EQ(m_registry.localMachineText("SOFTWARE\\veldra\\test", "only"), "in 32");
  put(HKEY_CURRENT_USER, KEY_WOW64_64KEY, "a", "user", REG_SZ);
  EXPECT_EQ(m_registry.localMachineText(Ours, "a"), "user");
  EXPECT_EQ(m_registry.localMachineText(Ours, "missing"), std::nullopt);
  EXPECT_EQ(m_registry.localMachineText(std::string("Software\0x", 10), "a"), std::nullopt);
}

TEST_F(SystemRegistryTest, onlyTextsAndNumbersAreValues) {
  put(HKEY_LOCAL_MACHINE, 0, "number", std::string("\x2A\0\0\0", 4), REG_DWORD);
  put(HKEY_LOCAL_MACHINE, 0, "bytes", "abc", REG_BINARY);
  EXPECT_EQ(m_registry.localMachineText(Ours, "number"), "42");
  EXPECT_EQ(m_registry.localMachineText(Ours, "bytes"), std::nullopt);
}

TEST_F(SystemRegistryTest, aProviderIsInstalledFoundAndLoaded) {
  const std::string library = VELDRA_RECORDING_PROVIDER;
  const std::string name = cli::providerNameOf(library);
  cli::installProvider(m_registry.places().machine, name, library);
  const auto providers = cli::installedProviders(m_registry);
  ASSERT_EQ(providers.size(), 1U);
  EXPECT_EQ(providers[0].name, name);
  EXPECT_TRUE(providers[0].isDefault);
  std::string error;
  EXPECT_NE(Libraries().load(providers[0].library, error), nullptr) << error;
  // A second one leaves the default as it is, until it is chosen.
  cli::installProvider(m_registry.places().machine, "Other \xC3\xA4", library);
  EXPECT_EQ(m_registry.localMachineText(Providers, "ProviderRegKey"), providers[0].key);
}

}  // namespace
}  // namespace veldra::host
