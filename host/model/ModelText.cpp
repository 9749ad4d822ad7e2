#include "host/model/ModelText.h"

#include <functional>
#include <random>
#include <utility>

#include "host/model/CMHeader.h"
#include "host/model/PathNames.h"

namespace veldra::host {
namespace {

constexpr char RestoreIt[] = "Fetch the file again from the archive or restore it from a backup.";
constexpr char RepairIt[] = "Repair that line in a text editor, or fetch the file again.";

Problem because(std::string what, std::string wayOut) {
  return Problem{{}, std::move(what), std::move(wayOut)};
}

Problem cutOff() {
  return because("The file is cut off.", RestoreIt);
}

Problem newerFormat(std::int64_t format) {
  return because("The file has format " + std::to_string(format) + "; this version reads up to " +
                     std::to_string(ModelFormat) + ".",
                 "Open it with a newer version of Veldra.");
}

/// What is wrong with the text before anything of it is read.
std::optional<Problem> unusableText(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) {
    return because("The file is not a text.", RestoreIt);
  }
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
    return because("The file is empty.", RestoreIt);
  }
  const std::string_view body = text.substr(commentHeaderLength(text));
  if (body.starts_with("<<<<<<< ")) {
    return because("The file holds the marks of an unresolved merge.",
                   "Resolve the conflict with the CM tool.");
  }
  return std::nullopt;
}

/// A cursor over the first keys of a body: `"key": scalar` pairs and nothing else.
class HeadReader {
 public:
  explicit HeadReader(std::string_view text) : m_text(text) {}

  bool atEnd() {
    skipBlanks();
    return m_text.empty();
  }
  bool take(char c) {
    skipBlanks();
    if (m_text.empty() || m_text.front() != c) return false;
    m_text.remove_prefix(1);
    return true;
  }
  /// The next JSON string or number with its quotes; empty when there is none. One that does not
  /// end takes the rest of the text with it.
  std::string_view scalar() {
    skipBlanks();
    const std::size_t size = m_text.starts_with('"') ? stringSize() : numberSize();
    const bool ends = size != std::string_view::npos;
    const std::string_view token = ends ? m_text.substr(0, size) : std::string_view();
    m_text.remove_prefix(ends ? size : m_text.size());
    return token;
  }

 private:
  void skipBlanks() {
    const std::size_t begin = m_text.find_first_not_of(" \t\r\n");
    m_text.remove_prefix(begin == std::string_view::npos ? m_text.size() : begin);
  }
  std::size_t stringSize() const {
    for (std::size_t at = 1; at < m_text.size(); ++at) {
      if (m_text[at] == '\\') {
        ++at;
      } else if (m_text[at] == '"') {
        return at + 1;
      }
    }
    return std::string_view::npos;
  }
  std::size_t numberSize() const { return m_text.find_first_not_of("-0123456789"); }

  std::string_view m_text;
};

std::string unquoted(std::string_view token) {
  if (token.size() >= 2 && token.find('\\') == std::string_view::npos) {
    return std::string(token.substr(1, token.size() - 2));
  }
  const Json value = Json::parse(token, nullptr, false);
  return value.is_string() ? value.get<std::string>() : std::string();
}

std::int64_t formatOf(std::string_view token) {
  const Json value = Json::parse(token, nullptr, false);
  return value.is_number_integer() ? value.get<std::int64_t>() : -1;
}

ModelHead broken(Problem problem) {
  ModelHead head;
  head.problem = std::move(problem);
  return head;
}

Problem brokenHead() {
  return because("The file does not begin with format, type and name.", RestoreIt);
}

/// Reads the keys up to "name" into `head`; false when they cannot be read.
bool readFirstKeys(HeadReader& reader, ModelHead& head, std::int64_t& format) {
  for (const std::string_view expected : {"format", "type", "name"}) {
    if (expected != "format" && !reader.take(',')) return false;
    const std::string_view key = reader.scalar();
    if (key.size() < 2 || key.substr(1, key.size() - 2) != expected || !reader.take(':')) {
      return false;
    }
    const std::string_view value = reader.scalar();
    if (value.empty()) return false;
    if (expected == "format") {
      format = formatOf(value);
      if (format > ModelFormat) return false;
    } else {
      (expected == "type" ? head.type : head.name) = unquoted(value);
    }
  }
  return true;
}

}  // namespace

std::optional<ModelText> parseModelText(std::string_view text, Problem& problem) {
  if (std::optional<Problem> unusable = unusableText(text)) {
    problem = std::move(*unusable);
    return std::nullopt;
  }
  const std::size_t headerEnd = commentHeaderLength(text);
  std::string error;
  bool endsEarly = false;
  std::optional<Json> body = parseJson(text, headerEnd, error, endsEarly);
  if (!body || !body->is_object()) {
    problem = endsEarly ? cutOff() : because("The file cannot be read: " + error + ".", RepairIt);
    if (body) problem = brokenHead();
    return std::nullopt;
  }
  const Json* format = member(*body, "format");
  if (!format || !format->is_number_integer() || format->get<std::int64_t>() < 1) {
    problem = because("The file does not say which format it has.", RestoreIt);
    return std::nullopt;
  }
  if (format->get<std::int64_t>() > ModelFormat) {
    problem = newerFormat(format->get<std::int64_t>());
    return std::nullopt;
  }
  return ModelText{std::string(text.substr(0, headerEnd)), std::move(*body), bodyHashOf(text)};
}

std::size_t bodyHashOf(std::string_view text) {
  return std::hash<std::string_view>()(text.substr(commentHeaderLength(text)));
}

std::string writeModelText(const ModelText& model) {
  return model.header + writeJson(model.body) + '\n';
}

std::string freshIdentifier() {
  std::random_device device;
  std::string id;
  for (int word = 0; word < 4; ++word) {
    const std::uint32_t bits = device();
    for (int shift = 28; shift >= 0; shift -= 4) id += "0123456789abcdef"[(bits >> shift) & 0xF];
  }
  return id;
}

ModelText newModelText(const std::string& unitType, const std::string& name) {
  ModelText model;
  model.header = "// Veldra " + lowerCase(unitType) +
                 "\n// $"
                 "Id$\n";
  model.body = {
      {"format", ModelFormat}, {"type", unitType}, {"name", name}, {"id", freshIdentifier()}};
  return model;
}

ModelHead readModelHead(std::string_view bytes, bool isWhole) {
  if (isWhole || bytes.find('\0') != std::string_view::npos) {
    if (std::optional<Problem> unusable = unusableText(bytes)) return broken(std::move(*unusable));
  }
  const std::size_t headerEnd = commentHeaderLength(bytes);
  HeadReader reader(bytes.substr(headerEnd));
  ModelHead head;
  std::int64_t format = 0;
  if (!reader.take('{') || !readFirstKeys(reader, head, format)) {
    if (format > ModelFormat) return broken(newerFormat(format));
    if (isWhole) return broken(reader.atEnd() ? cutOff() : brokenHead());
    head.state = ModelHead::State::Short;
    return head;
  }
  head.state = ModelHead::State::Whole;
  head.header = bytes.substr(0, headerEnd);
  return head;
}

}  // namespace veldra::host
