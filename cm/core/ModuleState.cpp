#include "cm/core/ModuleState.h"

#include "cm/host/Host.h"

namespace veldra {

ModuleState& moduleState() {
  static auto state = std::make_unique<ModuleState>();
  static unsigned generation = hostGeneration();
  if (generation != hostGeneration()) {
    generation = hostGeneration();
    state = std::make_unique<ModuleState>();
  }
  return *state;
}

}  // namespace veldra
