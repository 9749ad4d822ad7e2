#pragma once

#include <cstddef>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

class CMArchiveItem;

/// An ordered list of archive items that it does not own. Entries may be null and are then skipped.
class VELDRA_CM_EXPORT CMArchiveItemList {
 public:
  CMArchiveItemList() = default;
  CMArchiveItemList(const CMArchiveItemList&) = default;
  CMArchiveItemList& operator=(const CMArchiveItemList&) = default;
  virtual ~CMArchiveItemList() = default;

  void addTail(CMArchiveItem* item) { m_items.push_back(item); }
  /// Takes the first entry that is this very item out of the list. False when there is none.
  bool remove(const CMArchiveItem* item);
  void removeAll() { m_items.clear(); }
  /// Appends the entries of another list, which is empty then.
  void takeAll(CMArchiveItemList& other);

  bool empty() const { return m_items.empty(); }
  std::size_t size() const { return m_items.size(); }
  auto begin() const { return m_items.begin(); }
  auto end() const { return m_items.end(); }

 private:
  std::vector<CMArchiveItem*> m_items;
};

/// A list that owns its items.
class VELDRA_CM_EXPORT CMArchiveItemListWrapper {
 public:
  CMArchiveItemListWrapper() = default;
  CMArchiveItemListWrapper(const CMArchiveItemListWrapper&) = delete;
  CMArchiveItemListWrapper& operator=(const CMArchiveItemListWrapper&) = delete;
  ~CMArchiveItemListWrapper();

  CMArchiveItemList& list() { return m_list; }
  const CMArchiveItemList& list() const { return m_list; }

  /// Appends the item and takes it over.
  void addTail(CMArchiveItem* item) { m_list.addTail(item); }
  /// Destroys the item whether or not it is in the list; null is ignored.
  void removeAndMemoryDelete(CMArchiveItem* item);

 private:
  CMArchiveItemList m_list;
};

}  // namespace veldra
