#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cm/host/SPString.h"
#include "host/model/PropertyLayers.h"

namespace veldra::host {

/// Something in a tool pack that cannot work.
struct PackMistake {
  std::string file;
  std::size_t line = 0;  ///< 0 for the file as a whole.
  std::string property;  ///< Empty for what is wrong with no property in particular.
  std::string what;      ///< A sentence.
  std::string nearest;   ///< The name that was probably meant; empty for none.
};

/// Where a pack is used.
struct PackSurroundings {
  const PropertyLayers& layers;  ///< For the properties that are common to all tools.
  IPatternEngine& patterns;
  std::string installationRoot;  ///< Below it templates look for their helpers.
};

/// Reads a pack and reports, in the order of its lines: what is no TOML; properties that nobody
/// reads; templates with keywords that nothing answers to, with sections or quotes that are not
/// closed, or with helpers that do not exist; patterns that are not valid or lack the group that is
/// read. Nothing is run.
std::vector<PackMistake> checkPack(const std::string& file, const PackSurroundings& surroundings);

/// The mistake as one line: file, line, property, what, the name that was probably meant.
std::string sentence(const PackMistake& mistake);

}  // namespace veldra::host
