#pragma once

#include "cm/ui/logic/ItemRows.h"

namespace veldra {

/// Columns of the archive browser.
namespace ArchiveColumn {
inline constexpr int Name = 0;
inline constexpr int Type = 1;
inline constexpr int Version = 2;
inline constexpr int Locker = 3;
inline constexpr int Count = 4;
}  // namespace ArchiveColumn

/// What the archive holds, an item per row. The items are the caller's and must outlive this.
class VELDRA_CM_EXPORT ArchiveRows : public ItemRows {
 public:
  ArchiveRows() = default;
  explicit ArchiveRows(const CMArchiveItemList& items);

  // --- ItemRows ---
  int columnCount() const override { return ArchiveColumn::Count; }
  std::string header(int column) const override;
  std::string cell(std::size_t row, int column) const override;
};

}  // namespace veldra
