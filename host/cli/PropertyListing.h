#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "host/model/PropertyLayers.h"

namespace veldra::host::cli {

/// [{"subject", "metaclass", "name", "value", "origin", "source"}], keys in this order.
nlohmann::ordered_json jsonOfProperties(const std::vector<PropertyEntry>& entries);

/// A line a property: SUBJECT.METACLASS.NAME = VALUE  (ORIGIN).
void printProperties(const std::vector<PropertyEntry>& entries, std::ostream& out);

}  // namespace veldra::host::cli
