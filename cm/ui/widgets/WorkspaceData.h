#pragma once

#include <cstdint>
#include <optional>

#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/logic/UnitTexts.h"
#include "cm/ui/logic/WorkspaceOrder.h"
#include "cm/ui/logic/WorkspaceTree.h"

namespace veldra {

/// What both views look at. Texts are made when they are painted.
struct WorkspaceData {
  LiveUnits units;
  WorkspaceOrder order;
  WorkspaceTree tree;
  std::optional<UnitTexts> texts;
  /// While a command runs, units may die at any moment and are not looked at.
  bool isFrozen = false;

  /// The unit of a row, or of a place in the tree; null when there is nothing to show.
  IUnit* visibleUnit(std::size_t position) const {
    return isVisible() ? units.at(position) : nullptr;
  }
  IUnit* visibleUnitAtPlace(std::size_t place) const {
    return isVisible() ? units.atPlace(place) : nullptr;
  }

 private:
  bool isVisible() const { return !isFrozen && texts; }
};

}  // namespace veldra
