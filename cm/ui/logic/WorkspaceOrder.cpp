#include "cm/ui/logic/WorkspaceOrder.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "cm/ui/logic/KeyOrder.h"

namespace veldra {

namespace {

/// Longer texts are not kept: a project may have hundreds of thousands of them.
constexpr std::size_t KeptLength = 24;

/// So many units later a unit has come from memory.
constexpr std::size_t LookAhead = 8;

/// By the place of a unit, where it stands now.
std::vector<std::uint32_t> positionsOf(const LiveUnits& units) {
  std::vector<std::uint32_t> positions(units.size());
  for (std::uint32_t position = 0; position < positions.size(); ++position) {
    positions[units.placeAt(position)] = position;
  }
  return positions;
}

/// Adds the texts of the units from that place on; the result are the positions of those that are
/// gone.
std::vector<std::size_t> addTexts(KeyOrder& keys, std::size_t place, const LiveUnits& units,
                                  const UnitTexts& texts, std::int32_t column) {
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
  // By place, not by row: units lie in memory the way the model made them.
  while (place < units.size()) {
    std::size_t count = 0;
    for (; count < BlockSize && place < units.size(); ++place) {
      units.expectAtPlace(place + LookAhead);
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
  std::sort(gone.begin(), gone.end());
  return gone;
}

}  // namespace

std::vector<std::size_t> WorkspaceOrder::byColumn(const LiveUnits& units, const UnitTexts& texts,
                                                  std::int32_t column) {
  const std::size_t same = countSame(units, texts, column);
  if (m_kept && same > 0 && same == units.size()) {
    return {m_kept->order.begin(), m_kept->order.end()};
  }
  KeyOrder keys(units.size());
  for (std::size_t place = 0; place < same; ++place) keys.add(m_kept->texts.at(place), place);
  m_kept.reset();
  const std::vector<std::size_t> gone = addTexts(keys, same, units, texts, column);
  std::vector<std::size_t> order = keys.order();
  if (gone.empty() && !units.isReordered()) keep(column, keys.takeTexts(), order);
  order.insert(order.end(), gone.begin(), gone.end());
  return order;
}

std::size_t WorkspaceOrder::countSame(const LiveUnits& units, const UnitTexts& texts,
                                      std::int32_t column) const {
  const bool isComparable = m_kept && m_kept->column == column && !units.isReordered() &&
                            m_kept->texts.size() == units.size();
  if (!isComparable) return 0;
  std::string storage;
  std::size_t place = 0;
  for (; place < units.size(); ++place) {
    const IUnit* const unit = units.atPlace(place);
    if (unit == nullptr) break;
    if (texts.sortKey(*unit, column, storage) != m_kept->texts.at(place)) break;
  }
  return place;
}

void WorkspaceOrder::keep(std::int32_t column, KeyTexts texts,
                          const std::vector<std::size_t>& order) {
  if (texts.byteCount() > KeptLength * texts.size()) return;
  texts.giveBackSpare();
  m_kept = Kept{.column = column, .texts = std::move(texts), .order = {}};
  m_kept->order.assign(order.begin(), order.end());
}

}  // namespace veldra
