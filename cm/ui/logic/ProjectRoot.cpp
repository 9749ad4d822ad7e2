#include "cm/ui/logic/ProjectRoot.h"

#include "cm/host/Host.h"

namespace veldra {

IProject* activeProjectUnit() {
  return CurrentWorkspace::GetActiveProject();
}

int rootOverlay(IUnit& root) {
  const bool hasFile =
      (root.getFlags() & UnitFlag::SavedSeparately) != 0 || root.asEmbededFile() != nullptr;
  if (!hasFile) return 0;
  return root.isModified() ? OverlayImage::Modified : OverlayImage::Saved;
}

void loadEverything(const std::string& reason) {
  Host* const host = installedHost();
  if (host != nullptr) host->model().completeLoadOnDemandScope(reason);
}

}  // namespace veldra
