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

void CMArchiveItemList::takeAll(CMArchiveItemList& other) {
  if (m_items.empty()) {
    m_items.swap(other.m_items);
  } else {
    m_items.insert(m_items.end(), other.m_items.begin(), other.m_items.end());
  }
  other.removeAll();
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
