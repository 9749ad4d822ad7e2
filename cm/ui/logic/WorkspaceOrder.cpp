#include "cm/ui/logic/WorkspaceOrder.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "cm/ui/logic/KeyOrder.h"

namespace veldra {

namespace {

/// The keys of all units by their places; a unit that is gone has none.
KeyOrder keysOf(const LiveUnits& units, const UnitTexts& texts, std::int32_t column,
                std::vector<bool>& isGone) {
  // Writing to the long row of keys keeps the processor's short queue of writes full, and making a
  // text waits for that queue; so many are made before they are written.
  constexpr std::size_t BlockSize = 64;
  std::array<std::string, BlockSize> storage;
  std::array<std::string_view, BlockSize> block;
  KeyOrder keys(units.size());
  // By place, not by row: units lie in memory the way the model made them.
  for (std::size_t start = 0; start < units.size(); start += BlockSize) {
    const std::size_t count = std::min(BlockSize, units.size() - start);
    for (std::size_t i = 0; i < count; ++i) {
      const IUnit* const unit = units.atPlace(start + i);
      isGone[start + i] = unit == nullptr;
      block[i] = unit != nullptr ? texts.sortKey(*unit, column, storage[i]) : std::string_view();
    }
    for (std::size_t i = 0; i < count; ++i) keys.add(block[i]);
  }
  return keys;
}

}  // namespace

std::vector<std::size_t> orderByColumn(const LiveUnits& units, const UnitTexts& texts,
                                       std::int32_t column) {
  std::vector<bool> isGone(units.size());
  const KeyOrder keys = keysOf(units, texts, column, isGone);
  std::vector<std::uint32_t> places;
  std::vector<std::size_t> gone;
  places.reserve(units.size());
  for (std::size_t position = 0; position < units.size(); ++position) {
    const std::size_t place = units.placeAt(position);
    if (isGone[place]) {
      gone.push_back(position);
    } else {
      places.push_back(static_cast<std::uint32_t>(place));
    }
  }
  std::vector<std::size_t> order = keys.order(places);
  if (gone.empty()) return order;
  // What was counted without those that are gone.
  std::vector<std::size_t> alive;
  for (std::size_t position = 0; position < units.size(); ++position) {
    if (!isGone[units.placeAt(position)]) alive.push_back(position);
  }
  for (std::size_t& position : order) position = alive[position];
  order.insert(order.end(), gone.begin(), gone.end());
  return order;
}

}  // namespace veldra
