#include "cm/ui/logic/WorkspaceOrder.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "cm/ui/logic/KeyOrder.h"

namespace veldra {

namespace {

/// By the place of a unit, where it stands now.
std::vector<std::uint32_t> positionsOf(const LiveUnits& units) {
  std::vector<std::uint32_t> positions(units.size());
  for (std::uint32_t position = 0; position < positions.size(); ++position) {
    positions[units.placeAt(position)] = position;
  }
  return positions;
}

}  // namespace

std::vector<std::size_t> orderByColumn(const LiveUnits& units, const UnitTexts& texts,
                                       std::int32_t column) {
  // Writing to the long row of keys keeps the processor's short queue of writes full, and making a
  // text waits for that queue; so many are made before they are written.
  constexpr std::size_t BlockSize = 64;
  struct Row {
    std::string storage;
    std::string_view key;
    std::uint32_t position = 0;
  };
  std::array<Row, BlockSize> block;
  const std::vector<std::uint32_t> positions = positionsOf(units);
  std::vector<std::size_t> gone;
  KeyOrder keys(units.size());
  // By place, not by row: units lie in memory the way the model made them.
  for (std::size_t place = 0; place < units.size();) {
    std::size_t count = 0;
    for (; count < BlockSize && place < units.size(); ++place) {
      const IUnit* const unit = units.atPlace(place);
      if (unit == nullptr) {
        gone.push_back(positions[place]);
        continue;
      }
      Row& row = block[count++];
      row.position = positions[place];
      row.key = texts.sortKey(*unit, column, row.storage);
    }
    for (std::size_t i = 0; i < count; ++i) keys.add(block[i].key, block[i].position);
  }
  std::vector<std::size_t> order = keys.order();
  std::sort(gone.begin(), gone.end());
  order.insert(order.end(), gone.begin(), gone.end());
  return order;
}

}  // namespace veldra
