#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Archive items as the rows of a list. Texts are made when they are asked for; nothing but the
/// item is kept per row.
class VELDRA_CM_EXPORT ItemRows {
 public:
  virtual ~ItemRows() = default;

  virtual std::size_t size() const = 0;
  virtual const CMArchiveItem& item(std::size_t row) const = 0;
  virtual int columnCount() const = 0;
  virtual std::string header(int column) const = 0;
  virtual std::string cell(std::size_t row, int column) const = 0;
  /// Puts the rows into the order of a column: bytes compared, ascending. Rows with the same text
  /// stay as they are.
  virtual void sort(int column) = 0;

  /// The items of these rows; numbers beyond the end are left out.
  virtual CMArchiveItemList itemsOf(const std::vector<int>& rows) const = 0;

 protected:
  /// The order of the rows by a column, as positions.
  std::vector<std::size_t> orderOf(int column) const;
};

}  // namespace veldra
