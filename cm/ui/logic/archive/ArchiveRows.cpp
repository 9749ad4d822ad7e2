#include "cm/ui/logic/archive/ArchiveRows.h"

#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

ArchiveRows::ArchiveRows(const CMArchiveItemList& items) {
  m_items.reserve(items.size());
  for (CMArchiveItem* item : items) {
    if (item != nullptr) m_items.push_back(item);
  }
}

CMArchiveItemList ArchiveRows::all() const {
  CMArchiveItemList items;
  for (CMArchiveItem* item : m_items) items.addTail(item);
  return items;
}

std::string ArchiveRows::header(int column) const {
  return dialogText(MessageId::ArchiveColumnHeader + column);
}

std::string ArchiveRows::cell(std::size_t row, int column) const {
  const CMArchiveItem& item = *m_items[row];
  switch (column) {
    case ArchiveColumn::Name:
      return item.getNameNShortPath(true);
    case ArchiveColumn::Type:
      return item.getType();
    case ArchiveColumn::Version:
      return item.getVersion();
    case ArchiveColumn::Locker:
      return item.getLocker();
    default:
      return {};
  }
}

void ArchiveRows::sort(int column) {
  std::vector<CMArchiveItem*> ordered;
  ordered.reserve(m_items.size());
  for (const std::size_t position : orderOf(column)) ordered.push_back(m_items[position]);
  m_items = std::move(ordered);
}

CMArchiveItemList ArchiveRows::itemsOf(const std::vector<int>& rows) const {
  CMArchiveItemList items;
  for (const int row : rows) {
    const auto position = static_cast<std::size_t>(row);
    if (row >= 0 && position < m_items.size()) items.addTail(m_items[position]);
  }
  return items;
}

bool listArchiveInto(CMArchiveItemListWrapper& items, DiagnosticList& diagnostics) {
  ArgumentList noArguments;
  return guardedCall(&CMFacade::ListArchive, items.list(), noArguments, diagnostics);
}

}  // namespace veldra
