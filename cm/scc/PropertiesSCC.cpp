#include "cm/scc/PropertiesSCC.h"

#include "cm/scc/DisplayCommand.h"

namespace veldra {

namespace {

constexpr char Name[] = "Properties";

long showProperties(const std::string& file, void* context) {
  SCCdll& dll = providerState().dll;
  const TracedCall traced("SccProperties", file, CallLines::PrePostAndReturn);
  return traced.returned(dll.call(dll.SccProperties, context, parentWindow(), file.c_str()));
}

}  // namespace

int PropertiesSCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                              DiagnosticList& diagnostics) {
  std::vector<ProviderBatch> batches =
      batchesOf(units, Name, "Getting SCC Context to show properties");
  if (batches.empty() || !offers(providerState().dll.SccProperties, Name, diagnostics)) return 0;
  std::size_t position = 0;
  int result = 1;
  for (ProviderBatch& batch : batches) {
    batch.begin(position, units.size());
    for (std::size_t i = 0; i < batch.names().size(); ++i) {
      UnitList shown{batch.units()[i]};
      const long code = showProperties(batch.names()[i], batch.context());
      if (concludeDisplay(code, shown)) continue;
      markFailed(code, batch.report(i));
      result = 0;
    }
  }
  return result;
}

}  // namespace veldra
