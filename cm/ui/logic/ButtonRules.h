#pragma once

#include <span>
#include <string>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/CommandTable.h"

namespace veldra {

/// One button of the main dialog.
struct ButtonRow {
  DialogCommand command;
  int controlId;
  int line;              ///< 1 or 2.
  const char* shortcut;  ///< In the portable form of key sequences; empty for none.
};

/// All buttons in their order.
VELDRA_CM_EXPORT std::span<const ButtonRow> buttonTable();

/// What a button looks like under the project's present settings.
struct ButtonFace {
  int controlId;
  DialogCommand picture;
  std::string caption;
  std::string tooltip;
  const char* shortcut;  ///< As above.
  bool isShown;
};

/// What the buttons look like under the project's present settings.
class VELDRA_CM_EXPORT ButtonRules {
 public:
  static bool isShown(DialogCommand command);
  static std::string caption(DialogCommand command);
  static std::string tooltip(DialogCommand command);
  static ButtonFace face(const ButtonRow& row);
};

/// A corner in the units of the dialog.
struct Place {
  int x = 0;
  int y = 0;
};

/// Where the rows of buttons stand.
struct VELDRA_CM_EXPORT ButtonPlaces {
  static constexpr int Gap = 3;
  static constexpr Place Fallback{13, 19};

  /// `first` is the place that the layout names for the first row, null when there is none; the
  /// same for the second. `height` is that of a button.
  ButtonPlaces(const Place* first, const Place* second, int height);
  /// The places of buttons of these widths, side by side.
  std::vector<Place> ofLine(int line, std::span<const int> widths) const;

  Place firstLine;
  Place secondLine;
};

}  // namespace veldra
