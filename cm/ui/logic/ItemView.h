#pragma once

#include <optional>
#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/BatchResults.h"
#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// Two versions of the archive that are to be compared.
struct VersionChoice {
  std::string first;
  std::string second;
  bool withDescendants = false;
};

/// What a command on archive items asks of the window that it was started from. Messages and
/// questions do not come this way but through the host (`IUserMessages`).
class ItemView {
 public:
  virtual ~ItemView() = default;

  /// The selected items, read anew.
  virtual CMArchiveItemList CmSelectedItems() = 0;
  /// Everything that the archive holds.
  virtual CMArchiveItemList allItems() = 0;
  /// Shows the option window; nothing when the user gives up.
  virtual std::optional<CommandOptions> askOptions(const OptionPresets& presets) = 0;
  /// Asks which versions of an item are compared; nothing when the user gives up.
  virtual std::optional<VersionChoice> askVersions() = 0;
  /// From now until the end of the command units may be replaced or die: nothing may look at them.
  virtual void commandStarts() = 0;
  virtual void commandEnds() = 0;
  /// Sorts, fills and selects anew, after a command that did its work.
  virtual void refreshItems() = 0;
  /// How the units of the command ended; null when the window does not follow that.
  virtual const BatchResults* results() const { return nullptr; }
};

/// Tells the window when units may not be looked at.
class ItemViewRunning {
 public:
  explicit ItemViewRunning(ItemView& view) : m_view(view) { view.commandStarts(); }
  ItemViewRunning(const ItemViewRunning&) = delete;
  ItemViewRunning& operator=(const ItemViewRunning&) = delete;
  ~ItemViewRunning() { m_view.commandEnds(); }

 private:
  ItemView& m_view;
};

/// Whether at least one item is selected, or exactly one when `onlyOne`; otherwise the user has
/// been warned.
VELDRA_CM_EXPORT bool allowsItems(const CMArchiveItemList& items, bool onlyOne);

}  // namespace veldra
