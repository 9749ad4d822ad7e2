#include "host/model/Json.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace veldra::host {
namespace {

// Deeper documents are refused: writing them again would take a call per level.
constexpr int MaximumNesting = 200;

constexpr char Latin1[] = "latin1";

bool isUtf8(std::string_view bytes) {
  try {
    (void)Json(bytes).dump();
    return true;
  } catch (const Json::type_error&) {
    return false;
  }
}

std::string utf8OfLatin1(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 | (byte >> 6));
      text += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return text;
}

/// Nothing when a character lies beyond U+00FF. The text is valid UTF-8.
std::optional<std::string> latin1OfUtf8(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) {
      bytes += text[at];
    } else if (lead <= 0xC3 && at + 1 < text.size()) {
      const auto trail = static_cast<unsigned char>(text[++at]);
      bytes += static_cast<char>(((lead & 0x03) << 6) | (trail & 0x3F));
    } else {
      return std::nullopt;
    }
  }
  return bytes;
}

bool nestsTooDeep(std::string_view text) {
  int depth = 0;
  bool inString = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (inString) {
      if (c == '\\') ++at;
      if (c == '"') inString = false;
    } else if (c == '"') {
      inString = true;
    } else if (c == '{' || c == '[') {
      if (++depth > MaximumNesting) return true;
    } else if (c == '}' || c == ']') {
      --depth;
    }
  }
  return false;
}

constexpr std::array FirstKeys = {"format", "type", "name", "id"};

class Writer {
 public:
  explicit Writer(std::string& text) : m_text(text) {}

  // Recursion is bounded: no value nests deeper than `MaximumNesting`.
  void write(const Json& value) {
    if (value.is_object() && !value.empty()) {
      writeObject(value);
    } else if (value.is_array() && !value.empty()) {
      writeArray(value);
    } else {
      m_text += value.dump();
    }
  }

 private:
  void writeObject(const Json& object) {
    open('{');
    for (const char* key : FirstKeys) {
      if (const Json* value = member(object, key)) writeMember(key, *value);
    }
    for (const auto& [key, value] : object.items()) {
      if (std::find(FirstKeys.begin(), FirstKeys.end(), key) == FirstKeys.end()) {
        writeMember(key, value);
      }
    }
    close('}');
  }
  void writeArray(const Json& array) {
    open('[');
    for (const Json& value : array) {
      startLine();
      write(value);
    }
    close(']');
  }
  void writeMember(const std::string& key, const Json& value) {
    startLine();
    m_text += Json(key).dump() + ": ";
    write(value);
  }
  void open(char bracket) {
    m_text += bracket;
    ++m_depth;
    m_first = true;
  }
  void close(char bracket) {
    --m_depth;
    m_text += '\n';
    m_text.append(m_depth * 2, ' ') += bracket;
    m_first = false;
  }
  void startLine() {
    m_text += m_first ? "\n" : ",\n";
    m_text.append(m_depth * 2, ' ');
    m_first = false;
  }

  std::string& m_text;
  std::size_t m_depth = 0;
  bool m_first = true;
};

}  // namespace

std::string writeJson(const Json& value) {
  std::string text;
  Writer(text).write(value);
  return text;
}

Json jsonOfBytes(std::string_view bytes) {
  if (isUtf8(bytes)) return Json(bytes);
  return Json{{Latin1, utf8OfLatin1(bytes)}};
}

std::optional<std::string> bytesOfJson(const Json& value) {
  if (value.is_string()) return value.get<std::string>();
  const Json* latin1 = value.size() == 1 ? member(value, Latin1) : nullptr;
  if (!latin1 || !latin1->is_string()) return std::nullopt;
  return latin1OfUtf8(latin1->get_ref<const std::string&>());
}

std::optional<std::string> scalarText(const Json& value) {
  if (value.is_boolean() || value.is_number()) return value.dump();
  return bytesOfJson(value);
}

const Json* member(const Json& object, const char* key) {
  if (!object.is_object()) return nullptr;
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

Json& objectAt(Json& parent, const std::string& key) {
  Json& value = parent[key];
  if (value.is_object()) return value;
  if (!value.is_null()) {
    std::string aside = key + " (not understood)";
    while (parent.contains(aside)) aside += '!';
    parent[aside] = std::move(value);
  }
  return value = Json::object();
}

std::optional<Json> parseJson(std::string_view text, std::size_t from, std::string& error,
                              bool& cutOff) {
  cutOff = false;
  const std::string_view json = text.substr(from);
  if (nestsTooDeep(json)) {
    error = "its values are nested too deep";
    return std::nullopt;
  }
  try {
    return Json::parse(json);
  } catch (const Json::parse_error& wrong) {
    const std::size_t at = std::min(from + wrong.byte, text.size());
    const auto lines =
        std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    error = "line " + std::to_string(lines + 1) + " is no valid JSON";
    cutOff = wrong.byte > json.size();
    return std::nullopt;
  } catch (const Json::exception& wrong) {
    error = wrong.what();
    return std::nullopt;
  }
}

}  // namespace veldra::host
