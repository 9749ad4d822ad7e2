#include "host/model/TomlSettings.h"

#include <toml++/toml.h>

#include <filesystem>

#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

std::string lineOf(const toml::source_region& where) {
  return "Line " + std::to_string(where.begin.line);
}

std::optional<std::string> textOf(const toml::node& value) {
  if (const auto* text = value.as_string()) return text->get();
  if (const auto* flag = value.as_boolean()) return flag->get() ? "true" : "false";
  if (const auto* number = value.as_integer()) return std::to_string(number->get());
  return std::nullopt;
}

/// Sorts the tables of one file into properties, settings and the pack's description.
class Reader {
 public:
  Reader(const std::string& file, Problems& problems) : m_file(file), m_problems(problems) {}

  TomlSettings read(const toml::table& root) {
    for (const auto& [key, node] : root) {
      const std::string name(key.str());
      if (const toml::table* table = node.as_table()) {
        if (name == "pack") {
          readPack(*table);
        } else {
          readSubject(name, *table);
        }
      } else {
        reject(node, name);
      }
    }
    return std::move(m_settings);
  }

 private:
  void readPack(const toml::table& table) {
    const auto text = [&table](const char* key) { return table[key].value_or(std::string()); };
    m_settings.pack =
        PackDescription{text("name"), text("title"), text("description"), text("url"), m_file};
  }
  void readSubject(const std::string& subject, const toml::table& table) {
    for (const auto& [key, node] : table) {
      const std::string name(key.str());
      if (const toml::table* metaclass = node.as_table()) {
        readMetaclass(subject, name, *metaclass);
      } else if (std::optional<std::string> text = textOf(node)) {
        m_settings.settings[{subject, name}] = std::move(*text);
      } else {
        reject(node, name);
      }
    }
  }
  void readMetaclass(const std::string& subject, const std::string& metaclass,
                     const toml::table& table) {
    for (const auto& [key, node] : table) {
      std::string name(key.str());
      if (std::optional<std::string> text = textOf(node)) {
        m_settings.properties.push_back(
            {{subject, metaclass, std::move(name)}, std::move(*text), node.source().begin.line});
      } else {
        reject(node, name);
      }
    }
  }
  void reject(const toml::node& node, const std::string& name) {
    m_problems.push_back({m_file,
                          lineOf(node.source()) + ": \"" + name +
                              "\" is no string, boolean or whole number in a table.",
                          "Correct the line; the value is left out until then."});
  }

  const std::string& m_file;
  Problems& m_problems;
  TomlSettings m_settings;
};

bool isThere(const std::string& file) {
  std::error_code failed;
  return std::filesystem::exists(file, failed);
}

}  // namespace

TomlSettings readTomlSettings(const std::string& file, Problems& problems) {
  if (file.empty() || !isThere(file)) return {};
  const Result<std::string> text = readFile(file, SettingsFileLimit);
  if (!text) {
    problems.push_back({file, text.error(), "Its settings are left out until it can be read."});
    return {};
  }
  try {
    const toml::table root = toml::parse(*text, file);
    return Reader(file, problems).read(root);
  } catch (const toml::parse_error& wrong) {
    problems.push_back({file,
                        lineOf(wrong.source()) + ": " + std::string(wrong.description()) + ".",
                        "Correct the line; the settings of this file are left out until then."});
    return {};
  }
}

}  // namespace veldra::host
