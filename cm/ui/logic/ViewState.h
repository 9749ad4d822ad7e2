#pragma once

#include <cstdint>
#include <string>

#include "cm/host/Export.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// What the dialogs remember for the rest of the process.
class VELDRA_CM_EXPORT ViewState {
 public:
  /// Takes the first view from the setting "GUI", as long as none has been chosen.
  static void initialize();
  /// "Flat"; any other text means the tree.
  static std::string viewMode();
  static void setViewMode(const std::string& mode);
  static bool isFlat();

  /// The column of the list that its rows are sorted by.
  static std::int32_t sortColumn();
  static void setSortColumn(std::int32_t column);

  /// The same for a list of archive items, which starts with its first column.
  static std::int32_t itemSortColumn(const std::string& list);
  static void setItemSortColumn(const std::string& list, std::int32_t column);

  /// The comment that was typed for a command which then failed, to be offered again.
  static std::string unusedComment(DialogCommand command);
  static void keepComment(DialogCommand command, const std::string& comment);
};

}  // namespace veldra
