#pragma once

#include <vector>

#include "cm/core/CMDiagnostic.h"
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

  CMArchiveItemList all() const;

  // --- ItemRows ---
  std::size_t size() const override { return m_items.size(); }
  const CMArchiveItem& item(std::size_t row) const override { return *m_items[row]; }
  int columnCount() const override { return ArchiveColumn::Count; }
  std::string header(int column) const override;
  std::string cell(std::size_t row, int column) const override;
  void sort(int column) override;
  CMArchiveItemList itemsOf(const std::vector<int>& rows) const override;

 private:
  std::vector<CMArchiveItem*> m_items;
};

/// Lists the archive; the wrapper owns the items. False when the back end reported a failure.
VELDRA_CM_EXPORT bool listArchiveInto(CMArchiveItemListWrapper& items, DiagnosticList& diagnostics);

}  // namespace veldra
