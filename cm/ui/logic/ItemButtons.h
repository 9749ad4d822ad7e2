#pragma once

#include <string>

#include "cm/host/Export.h"
#include "cm/ui/logic/ButtonRules.h"

namespace veldra {

/// The buttons of the archive browser and of the synchronize dialog. Captions and tooltips follow
/// each other in this order in the host's texts.
enum class ItemButton : int {
  CheckOutFromArchive,
  FetchFromArchive,
  CompareModel,
  CompareVersions,
  CheckOutBranch,
  Synchronize,
  Refresh,
};

/// What the buttons look like under the project's present settings.
class VELDRA_CM_EXPORT ItemButtonRules {
 public:
  static bool isShown(ItemButton button);
  static std::string caption(ItemButton button);
  static ButtonFace face(ItemButton button);
};

}  // namespace veldra
