#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "cm/host/Export.h"
#include "cm/host/IDObject.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// A list of units that may die while it is kept: a window may stand open for hours, and a question
/// lets the host do other things.
///
/// A position says where a unit stands now, a place where it stood when the list was assigned.
class VELDRA_CM_EXPORT LiveUnits {
 public:
  LiveUnits() = default;
  explicit LiveUnits(const UnitList& units) { assign(units); }

  /// Null entries are left out. Units that were in the list already cost next to nothing, as long
  /// as they come in the order of the former assignment.
  void assign(const UnitList& units);
  void clear() { assign({}); }
  std::size_t size() const { return m_entries.size(); }
  bool empty() const { return m_entries.empty(); }

  /// The unit at that position, or null when it is gone or there is no such position.
  IUnit* at(std::size_t position) const;
  std::size_t placeAt(std::size_t position) const {
    return m_order.empty() ? position : m_order[position];
  }
  /// The same by place.
  IUnit* atPlace(std::size_t place) const;
  /// Says that the unit at that place will soon be looked at: units lie far apart in memory, and
  /// waiting for them is most of the time that a look at all of them takes.
  void expectAtPlace(std::size_t place) const {
    if (place < m_entries.size()) __builtin_prefetch(m_entries[place].unit);
  }
  /// Those that still exist, in order.
  UnitList alive() const;
  bool anyGone() const;
  /// Whether positions may differ from places.
  bool isReordered() const { return !m_order.empty(); }
  /// Puts the units into another order: position i gets what was at `order[i]`.
  void reorder(const std::vector<std::size_t>& order);

 private:
  bool isStill(const UnitList& units) const;

  struct Entry {
    IUnit* unit;
    std::unique_ptr<IHandle> handle;  ///< Null when the host gives none; then the unit is trusted.
    IUnit* get() const {
      return handle == nullptr || handle->doGetObject() != nullptr ? unit : nullptr;
    }
  };
  std::vector<Entry> m_entries;
  std::vector<std::uint32_t> m_order;  ///< Empty as long as positions are places.
};

}  // namespace veldra
