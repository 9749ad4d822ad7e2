#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace veldra::host {

using Json = nlohmann::json;

/// A text as JSON holds it. Bytes that are no UTF-8 are kept as {"latin1": ...}, each byte one
/// character, so that nothing is lost.
Json jsonOfBytes(std::string_view bytes);

/// The bytes of a value made by `jsonOfBytes`; nothing for any other value.
std::optional<std::string> bytesOfJson(const Json& value);

/// A scalar as text: strings as they are, "true" and "false", numbers in decimal. Nothing for
/// lists, objects and null.
std::optional<std::string> scalarText(const Json& value);

/// The member of that name, or null when `object` is no object or has none.
const Json* member(const Json& object, const char* key);

/// The object under `key` of an object, made when there is none. A value of another kind, which
/// somebody wrote by hand, moves to a key that says that it is not understood.
Json& objectAt(Json& parent, const std::string& key);

/// Parses the text from `from` to its end. Nothing, with the reason in `error`, when it is no JSON
/// or nested deeper than any sensible model; the line that it names counts from the start of the
/// text. `cutOff` tells that the text just ends too early.
std::optional<Json> parseJson(std::string_view text, std::size_t from, std::string& error,
                              bool& cutOff);

/// The text of a value as model files have it: one value a line, two blanks a level, and in every
/// object the keys that say what it is first ("format", "type", "name", "id"), the others by name.
/// The same value always yields the same text.
std::string writeJson(const Json& value);

}  // namespace veldra::host
