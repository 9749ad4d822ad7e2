#include "host/cli/PropertyListing.h"

#include <string>

#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

nlohmann::ordered_json jsonOfProperties(const std::vector<PropertyEntry>& entries) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const PropertyEntry& entry : entries) {
    nlohmann::ordered_json json;
    json["subject"] = jsonText(entry.key.subject);
    json["metaclass"] = jsonText(entry.key.metaclass);
    json["name"] = jsonText(entry.key.name);
    json["value"] = jsonText(entry.value);
    json["origin"] = std::string(originName(entry.origin));
    json["source"] = jsonText(entry.source);
    list.push_back(std::move(json));
  }
  return list;
}

void printProperties(const std::vector<PropertyEntry>& entries, std::ostream& out) {
  for (const PropertyEntry& entry : entries) {
    out << textForPeople(entry.key.subject) << '.' << textForPeople(entry.key.metaclass) << '.'
        << textForPeople(entry.key.name) << " = " << textForPeople(entry.value) << "  ("
        << originName(entry.origin) << ")\n";
  }
}

}  // namespace veldra::host::cli
