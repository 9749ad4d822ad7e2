#include "cm/ui/logic/OutputFlush.h"

#include <ostream>

#include "cm/core/CMFacade.h"
#include "cm/host/Host.h"

namespace veldra {

void flushCommandOutput() {
  Host* const host = installedHost();
  IAbstractCMManager* const manager = host != nullptr ? host->cmManager() : nullptr;
  if (manager != nullptr) manager->setCMOutputFollows(1);
  if (std::ostream* const out = CMFacade::outStream()) out->flush();
}

}  // namespace veldra
