#include "host/platform/RegistryFile.h"

#include <toml++/toml.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

constexpr std::size_t RegistryFileLimit = 1U << 20U;

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

RegistryValues valuesOf(const toml::table& table) {
  RegistryValues values;
  for (const auto& [name, node] : table) {
    if (const auto text = node.value<std::string>()) {
      values.emplace(name.str(), *text);
    } else if (const auto number = node.value_exact<std::int64_t>()) {
      values.emplace(name.str(), std::to_string(*number));
    }
  }
  return values;
}

}  // namespace

bool RegistryOrder::operator()(const std::string& left, const std::string& right) const {
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                      [](char a, char b) { return lower(a) < lower(b); });
}

Result<RegistryFile> RegistryFile::read(const std::string& path) {
  RegistryFile file;
  std::error_code failed;
  if (!std::filesystem::exists(path, failed)) return file;
  const Result<std::string> text = readFile(path, RegistryFileLimit);
  if (!text) return Result<RegistryFile>::failure(text.error());
  try {
    for (const auto& [key, node] : toml::parse(*text)) {
      if (const toml::table* table = node.as_table())
        file.keys[std::string(key.str())].merge(valuesOf(*table));
    }
    return file;
  } catch (const toml::parse_error& wrong) {
    return Result<RegistryFile>::failure(
        path + ", line " + std::to_string(wrong.source().begin.line) + ": " +
        std::string(wrong.description()) + ". Correct the file or remove it.");
  }
}

std::optional<std::string> RegistryFile::write(const std::string& path) const {
  toml::table root;
  for (const auto& [key, values] : keys) {
    toml::table table;
    for (const auto& [name, value] : values) table.insert(name, value);
    root.insert(key, std::move(table));
  }
  std::ostringstream text;
  text << "# The source-control providers of this machine or user; written by veldra-cm provider.\n"
       << root << '\n';
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), failed);
  if (failed) return "The directory of " + path + " cannot be made: " + failed.message() + ".";
  return writeFileAtomically(path, text.str());
}

}  // namespace veldra::host
