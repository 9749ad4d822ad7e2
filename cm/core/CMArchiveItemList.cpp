#include "cm/core/CMArchiveItemList.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"

namespace veldra {

bool CMArchiveItemList::remove(const CMArchiveItem* item) {
  const auto at = std::find(m_items.begin(), m_items.end(), item);
  if (at == m_items.end()) return false;
  m_items.erase(at);
  return true;
}

CMArchiveItemListWrapper::~CMArchiveItemListWrapper() {
  for (const CMArchiveItem* item : m_list) delete item;
}

void CMArchiveItemListWrapper::removeAndMemoryDelete(CMArchiveItem* item) {
  if (item == nullptr) return;
  m_list.remove(item);
  delete item;
}

}  // namespace veldra
