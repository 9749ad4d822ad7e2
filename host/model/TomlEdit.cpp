#include "host/model/TomlEdit.h"

#include <toml++/toml.h>

#include <filesystem>
#include <utility>

#include "host/model/TomlSettings.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

/// The offset of a position that the parser reports: lines and columns count from 1, columns in
/// characters.
std::size_t offsetOf(std::string_view text, const toml::source_position& position) {
  std::size_t at = 0;
  for (toml::source_index line = 1; line < position.line; ++line) {
    const std::size_t end = text.find('\n', at);
    if (end == std::string_view::npos) return text.size();
    at = end + 1;
  }
  for (toml::source_index column = 1; column < position.column && at < text.size(); ++column) {
    ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
  }
  return at;
}

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    constexpr char hex[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      result.append(1, '\\') += c;
    } else if (byte < 0x20 || byte == 0x7F) {
      result.append("\\u00").append(1, hex[byte >> 4]) += hex[byte & 0xF];
    } else {
      result += c;
    }
  }
  return result + '"';
}

std::string quotedKey(const std::string& key) {
  const bool bare = !key.empty() && key.find_first_not_of(
                                        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                        "0123456789_-") == std::string::npos;
  return bare ? key : quoted(key);
}

std::string edited(std::string text, const toml::table& root, const PropertyKey& key,
                   const std::string& value) {
  const toml::node_view metaclass = root[key.subject][key.metaclass];
  if (const toml::node* present = metaclass[key.name].node()) {
    const std::size_t begin = offsetOf(text, present->source().begin);
    const std::size_t end = offsetOf(text, present->source().end);
    return text.replace(begin, end - begin, quoted(value));
  }
  const std::string line = quotedKey(key.name) + " = " + quoted(value) + "\n";
  if (metaclass.is_table() && !metaclass.as_table()->empty()) {
    // Before the table's first value, which stands on a line of its own.
    toml::source_position first = metaclass.as_table()->begin()->second.source().begin;
    for (const auto& [name, node] : *metaclass.as_table()) {
      if (node.source().begin.line < first.line) first = node.source().begin;
    }
    return text.insert(offsetOf(text, {first.line, 1}), line);
  }
  if (!text.empty() && text.back() != '\n') text += '\n';
  if (!text.empty()) text += '\n';
  return text + "[" + quotedKey(key.subject) + "." + quotedKey(key.metaclass) + "]\n" + line;
}

/// Whether the text is valid and the property has the value in it.
bool holds(const std::string& text, const PropertyKey& key, const std::string& value) {
  try {
    const toml::table root = toml::parse(text);
    return root[key.subject][key.metaclass][key.name].value<std::string>() == value;
  } catch (const toml::parse_error&) {
    return false;
  }
}

std::optional<std::string> makeDirectoryOf(const std::string& file) {
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(file).parent_path(), failed);
  if (!failed) return std::nullopt;
  return "The directory of " + file + " cannot be made: " + failed.message() + ".";
}

}  // namespace

namespace {

std::string damaged(const std::string& file, const toml::parse_error& wrong) {
  return file + ", line " + std::to_string(wrong.source().begin.line) + ": " +
         std::string(wrong.description()) + ". Correct the file first; it is unchanged.";
}

/// Without the lines of the property; unchanged when they hold something else, too.
std::string without(std::string text, const toml::node& value) {
  const std::size_t begin = offsetOf(text, {value.source().begin.line, 1});
  const std::size_t end = text.find('\n', offsetOf(text, value.source().end));
  return text.erase(begin, end == std::string::npos ? end : end + 1 - begin);
}

}  // namespace

std::optional<std::string> setTomlProperty(const std::string& file, const PropertyKey& key,
                                           const std::string& value) {
  if (auto error = makeDirectoryOf(file)) return error;
  std::string text;
  std::error_code failed;
  if (std::filesystem::exists(file, failed)) {
    Result<std::string> present = readFile(file, SettingsFileLimit);
    if (!present) return present.error();
    text = std::move(*present);
  }
  try {
    const std::string changed = edited(text, toml::parse(text), key, value);
    if (holds(changed, key, value)) return writeFileAtomically(file, changed);
    return "The value cannot be written to " + file +
           ": it is no UTF-8 text, or the table is written in a form that only its author can "
           "change. Edit the file by hand.";
  } catch (const toml::parse_error& wrong) {
    return damaged(file, wrong);
  }
}

std::optional<std::string> removeTomlProperty(const std::string& file, const PropertyKey& key) {
  Result<std::string> text = readFile(file, SettingsFileLimit);
  if (!text) return text.error();
  try {
    toml::table root = toml::parse(*text);
    const toml::node* const present = root[key.subject][key.metaclass][key.name].node();
    if (present == nullptr) return std::nullopt;
    const std::string changed = without(*text, *present);
    root[key.subject][key.metaclass].as_table()->erase(key.name);
    if (root == toml::parse(changed)) return writeFileAtomically(file, changed);
    return "The property cannot be taken out of " + file +
           ": its line holds something else, too. Edit the file by hand.";
  } catch (const toml::parse_error& wrong) {
    return damaged(file, wrong);
  }
}

}  // namespace veldra::host
