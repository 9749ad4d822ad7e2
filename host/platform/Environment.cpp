#include "host/platform/Environment.h"

#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "host/platform/Clock.h"
#include "host/platform/Program.h"
#include "host/platform/SystemError.h"

namespace veldra::host {

namespace {

std::string variableName(const std::string& setting) {
  std::string name = "VELDRA_";
  for (const char c : setting) {
    const auto byte = static_cast<unsigned char>(c);
    name += std::isalnum(byte) != 0 ? static_cast<char>(std::toupper(byte)) : '_';
  }
  return name;
}

}  // namespace

std::string findInstallationRoot() {
  if (const char* root = std::getenv("VELDRA_ROOT"); root != nullptr && *root != '\0') return root;
  const std::filesystem::path folder = programFolder();
  if (folder.empty()) return {};
  return (folder.parent_path() / "share" / "veldra-cm").string();
}

std::string unusableDirectory(const std::string& path, int error) {
  const std::string name = path.empty() ? "The current directory" : "The directory '" + path + "'";
  return name + " cannot be used: " + systemErrorText(error) +
         ". Go to one that exists and that you may enter.";
}

Environment::Environment(std::string installationRoot, Settings settings)
    : m_root(std::move(installationRoot)), m_settings(std::move(settings)) {}

int Environment::omGetRoot(std::string& root) {
  if (m_root.empty()) return 0;
  root = m_root;
  return 1;
}

int Environment::omGetEnvVar(const std::string& section, const std::string& name,
                             std::string& value, const std::string& defaultValue) {
  value = defaultValue;
  if (section == "General") {
    if (const char* variable = std::getenv(variableName(name).c_str())) {
      value = variable;
      return 1;
    }
  }
  try {
    auto setting = m_settings ? m_settings(section, name) : std::nullopt;
    if (!setting) return 0;
    value = std::move(*setting);
    return 1;
  } catch (...) {
    // A host's look-up that fails leaves the setting unset.
    return 0;
  }
}

std::string Environment::omGetCurrentTime() {
  return timeText(localTimeNow());
}

std::string Environment::omGetCurrentDate() {
  return dateText(localTimeNow());
}

std::string Environment::omGetErrorCodeString() {
  return m_lastError == 0 ? std::string() : systemErrorText(m_lastError);
}

}  // namespace veldra::host
