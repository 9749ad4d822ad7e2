#pragma once

#include <string>

#include "host/model/PropertyLayers.h"

namespace veldra::host::cli {

/// The tool pack of that name, the case of letters aside. Ends the command with the known names
/// when there is none.
const PackDescription& packNamed(const PropertyLayers& properties, const std::string& name);

}  // namespace veldra::host::cli
