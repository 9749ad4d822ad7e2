#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cm/core/ArchiveShortPath.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Archive items as the rows of a list. Texts are made when they are asked for; nothing but the
/// item is kept per row.
class VELDRA_CM_EXPORT ItemRows {
 public:
  virtual ~ItemRows() = default;

  virtual int columnCount() const = 0;
  virtual std::string header(int column) const = 0;
  virtual std::string cell(std::size_t row, int column) const = 0;

  std::size_t size() const { return m_rows.size(); }
  const CMArchiveItem& item(std::size_t row) const { return *m_rows[row]; }
  /// Puts the rows into the order of a column: bytes compared, ascending. Rows with the same text
  /// stay as they are.
  void sort(int column);

  CMArchiveItemList all() const;
  /// The items of these rows; numbers beyond the end are left out.
  CMArchiveItemList itemsOf(const std::vector<int>& rows) const;

 protected:
  /// The settings that names depend on are those of now.
  void readNameSettings() { m_shortPath = ArchiveShortPath(); }
  std::string nameOf(std::size_t row, bool withSuffix) const {
    return m_shortPath.of(*m_rows[row], withSuffix);
  }

  std::vector<CMArchiveItem*> m_rows;  ///< None is null; the items must outlive this.

 private:
  ArchiveShortPath m_shortPath;
};

}  // namespace veldra
