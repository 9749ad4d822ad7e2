#pragma once

#include <vector>

#include "host/compare/ModelDifference.h"

namespace veldra::host::compare {

enum class Side { First, Second };

/// A body that takes, for every difference, what the chosen side has.
///
/// `choices` stand in the order of the differences; those that are missing count as the first side.
/// What does not differ, and the order of the first side, stay. No element that a side was chosen
/// for is lost: one whose owner would go keeps that owner, or stands where the other side has it,
/// and an element inside an added one brings its owner along.
Json mergedModel(const ElementTree& first, const ElementTree& second,
                 const std::vector<Difference>& differences, const std::vector<Side>& choices);

}  // namespace veldra::host::compare
