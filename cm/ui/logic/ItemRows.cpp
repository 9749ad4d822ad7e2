#include "cm/ui/logic/ItemRows.h"

#include <algorithm>
#include <utility>

namespace veldra {

void ItemRows::sort(int column) {
  std::vector<std::pair<std::string, CMArchiveItem*>> keyed;
  keyed.reserve(size());
  for (std::size_t row = 0; row < size(); ++row) keyed.emplace_back(cell(row, column), m_rows[row]);
  std::ranges::stable_sort(keyed, {}, &std::pair<std::string, CMArchiveItem*>::first);
  std::ranges::transform(keyed, m_rows.begin(), &std::pair<std::string, CMArchiveItem*>::second);
}

CMArchiveItemList ItemRows::all() const {
  CMArchiveItemList items;
  for (CMArchiveItem* item : m_rows) items.addTail(item);
  return items;
}

CMArchiveItemList ItemRows::itemsOf(const std::vector<int>& rows) const {
  CMArchiveItemList items;
  for (const int row : rows) {
    const auto position = static_cast<std::size_t>(row);
    if (row >= 0 && position < m_rows.size()) items.addTail(m_rows[position]);
  }
  return items;
}

}  // namespace veldra
