#include "cm/ui/logic/archive/ArchiveRows.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

ArchiveRows::ArchiveRows(const CMArchiveItemList& items) {
  m_rows.reserve(items.size());
  for (CMArchiveItem* item : items) {
    if (item != nullptr) m_rows.push_back(item);
  }
}

std::string ArchiveRows::header(int column) const {
  return dialogText(MessageId::ArchiveColumnHeader + column);
}

std::string ArchiveRows::cell(std::size_t row, int column) const {
  const CMArchiveItem& item = *m_rows[row];
  switch (column) {
    case ArchiveColumn::Name:
      return nameOf(row, true);
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

}  // namespace veldra
