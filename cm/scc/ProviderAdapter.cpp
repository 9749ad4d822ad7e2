#include "cm/scc/ProviderAdapter.h"

#include "cm/core/HybridRule.h"
#include "cm/scc/CorvaneAdapter.h"
#include "cm/scc/OrbisAdapter.h"

namespace veldra {

bool ProviderAdapter::beforeCheckOut(const pvContextStruct& /*context*/, std::string& /*comment*/) {
  return true;
}

std::unique_ptr<ProviderAdapter> ProviderAdapter::forProvider() {
  if (isProviderNamed("Corvane")) return std::make_unique<CorvaneAdapter>();
  if (isProviderNamed("Orbis")) return std::make_unique<OrbisAdapter>();
  return std::make_unique<ProviderAdapter>();
}

}  // namespace veldra
