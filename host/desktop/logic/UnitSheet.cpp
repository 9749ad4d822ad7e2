#include "host/desktop/logic/UnitSheet.h"

#include <cmath>
#include <utility>

#include "host/model/ModelText.h"

namespace veldra::host::desktop {
namespace {

/// A value for people; lists and objects are shown as JSON.
std::string shownText(const Json* value) {
  if (!value || value->is_null()) return {};
  if (const auto bytes = bytesOfJson(*value)) return *bytes;
  if (const auto scalar = scalarText(*value)) return *scalar;
  return value->dump(-1, ' ', false, Json::error_handler_t::replace);
}

double number(const Json& object, const char* key) {
  const Json* value = member(object, key);
  const double found = value && value->is_number() ? value->get<double>() : 0;
  return std::isfinite(found) ? found : 0;
}

std::vector<SheetAttribute> attributesOf(const Json& object) {
  std::vector<SheetAttribute> attributes;
  const Json* values = member(object, "attributes");
  if (!values || !values->is_object()) return attributes;
  for (const auto& [name, value] : values->items()) attributes.push_back({name, shownText(&value)});
  return attributes;
}

SheetElement elementOf(const Json& value, std::size_t source) {
  return {shownText(member(value, "type")), shownText(member(value, "name")), attributesOf(value),
          source};
}

SheetBox boxOf(const Json& value, std::size_t source) {
  return {shownText(member(value, "element")),
          number(value, "x"),
          number(value, "y"),
          number(value, "width"),
          number(value, "height"),
          source};
}

SheetConnection connectionOf(const Json& value, std::size_t source) {
  return {shownText(member(value, "from")), shownText(member(value, "to")),
          shownText(member(value, "text")), source};
}

/// The objects of a list in the body; values of another kind are no rows.
template <class Row>
std::vector<Row> rowsOf(const Json& body, const char* key, Row (*read)(const Json&, std::size_t)) {
  std::vector<Row> rows;
  const Json* list = member(body, key);
  if (!list || !list->is_array()) return rows;
  for (std::size_t i = 0; i < list->size(); ++i) {
    if ((*list)[i].is_object()) rows.push_back(read((*list)[i], i));
  }
  return rows;
}

void putText(const char* key, const std::string& before, const std::string& after, Json& object) {
  if (before != after) object[key] = jsonOfBytes(after);
}

void putNumber(const char* key, double before, double after, Json& object) {
  if (before == after) return;
  if (after == std::floor(after) && std::abs(after) < 1e15) {
    object[key] = static_cast<std::int64_t>(after);
  } else {
    object[key] = after;
  }
}

void putAttributes(const std::vector<SheetAttribute>& before,
                   const std::vector<SheetAttribute>& after, Json& object) {
  if (before == after) return;
  const Json* present = member(object, "attributes");
  const Json former = present && present->is_object() ? *present : Json::object();
  Json attributes = Json::object();
  for (const SheetAttribute& attribute : after) {
    const Json* same = member(former, attribute.name.c_str());
    const bool isUntouched = same && shownText(same) == attribute.value;
    attributes[attribute.name] = isUntouched ? *same : jsonOfBytes(attribute.value);
  }
  if (attributes.empty()) {
    object.erase("attributes");
  } else {
    object["attributes"] = std::move(attributes);
  }
}

void putRow(const SheetElement& before, const SheetElement& after, Json& object) {
  if (after.source == NewRow) object["id"] = freshIdentifier();
  putText("type", before.type, after.type, object);
  putText("name", before.name, after.name, object);
  putAttributes(before.attributes, after.attributes, object);
}

void putRow(const SheetBox& before, const SheetBox& after, Json& object) {
  putText("element", before.element, after.element, object);
  putNumber("x", before.x, after.x, object);
  putNumber("y", before.y, after.y, object);
  putNumber("width", before.width, after.width, object);
  putNumber("height", before.height, after.height, object);
}

void putRow(const SheetConnection& before, const SheetConnection& after, Json& object) {
  putText("from", before.from, after.from, object);
  putText("to", before.to, after.to, object);
  putText("text", before.text, after.text, object);
}

template <class Row>
void putRows(const char* key, const std::vector<Row>& before, const std::vector<Row>& after,
             Json& body) {
  if (before == after) return;
  const Json* present = member(body, key);
  const Json former = present && present->is_array() ? *present : Json::array();
  Json list = Json::array();
  for (const Row& row : after) {
    const bool isKnown = row.source < former.size();
    Json object = isKnown ? former[row.source] : Json::object();
    Row old{};
    for (const Row& candidate : before) {
      if (isKnown && candidate.source == row.source) old = candidate;
    }
    putRow(old, row, object);
    list.push_back(std::move(object));
  }
  // What is no row is not for people to remove by accident.
  for (const Json& value : former) {
    if (!value.is_object()) list.push_back(value);
  }
  if (list.empty()) {
    body.erase(key);
  } else {
    body[key] = std::move(list);
  }
}

}  // namespace

UnitSheet sheetOf(const Json& body) {
  return {.name = shownText(member(body, "name")),
          .description = shownText(member(body, "description")),
          .attributes = attributesOf(body),
          .elements = rowsOf(body, "elements", elementOf),
          .boxes = rowsOf(body, "boxes", boxOf),
          .connections = rowsOf(body, "connections", connectionOf)};
}

void applySheet(const UnitSheet& before, const UnitSheet& after, Json& body) {
  putText("name", before.name, after.name, body);
  if (before.description != after.description && after.description.empty()) {
    body.erase("description");
  } else {
    putText("description", before.description, after.description, body);
  }
  putAttributes(before.attributes, after.attributes, body);
  putRows("elements", before.elements, after.elements, body);
  putRows("boxes", before.boxes, after.boxes, body);
  putRows("connections", before.connections, after.connections, body);
}

}  // namespace veldra::host::desktop
