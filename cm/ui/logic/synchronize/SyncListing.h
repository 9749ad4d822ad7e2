#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/ItemRows.h"
#include "cm/ui/logic/synchronize/ItemComparison.h"

namespace veldra {

/// Columns of the list of what differs.
namespace SyncColumn {
inline constexpr int Name = 0;
inline constexpr int Type = 1;
inline constexpr int Version = 2;
inline constexpr int Access = 3;
inline constexpr int Status = 4;
inline constexpr int Count = 5;
}  // namespace SyncColumn

/// The archive items that differ from the model.
///
/// Embedded files are never among them. Items that only the archive has are listed when the project
/// uses a command-line tool, and never with a provider, whatever "ShowNewItemsInSynchronize" says.
class VELDRA_CM_EXPORT SyncListing : public ItemRows {
 public:
  /// Lists workspace and archive anew; with a provider every unit of the workspace gets a
  /// placeholder item. `label` may be empty. False when the archive, or the versions that the files
  /// have here, could not be listed; the list is then as it was.
  bool list(const std::string& label, DiagnosticList& diagnostics);
  /// Computes which items differ, and stores the words for that in the items.
  void fill();

  SyncStatus status(std::size_t row) const { return m_status.at(m_rows[row]); }
  /// Null until something has been listed.
  const ItemComparison* comparison() const { return m_comparison.get(); }
  void setStubExclusion(bool excludes) { m_stubExclusion = excludes; }

  // --- ItemRows ---
  int columnCount() const override { return SyncColumn::Count; }
  std::string header(int column) const override;
  std::string cell(std::size_t row, int column) const override;

 private:
  SyncStatus statusOf(const CMArchiveItem& item, const IUnit* unit) const;
  static void createDummyArchiveItems(const UnitList& units, CMArchiveItemListWrapper& items);
  void askProviderForNewer(const UnitList& units);

  std::unique_ptr<CMArchiveItemListWrapper> m_archive;
  std::unique_ptr<ItemComparison> m_comparison;
  std::unordered_set<std::string> m_newerInArchive;               ///< Files, as the provider says.
  std::unordered_map<const CMArchiveItem*, SyncStatus> m_status;  ///< Of each row.
  bool m_stubExclusion = false;
};

/// The host's words for a status; empty for those that are never listed.
VELDRA_CM_EXPORT std::string syncStatusText(SyncStatus status);

}  // namespace veldra
