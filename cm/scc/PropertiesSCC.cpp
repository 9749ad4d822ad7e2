#include "cm/scc/PropertiesSCC.h"

#include "cm/scc/DisplayCommand.h"
#include "cm/scc/ProviderBatch.h"

namespace veldra {

namespace {

constexpr char PropertiesName[] = "Properties";

long showProperties(const std::string& file, void* context) {
  SCCdll& dll = providerState().dll;
  const TracedCall traced("SccProperties", file, CallLines::PrePostAndReturn);
  return traced.returned(dll.call(dll.SccProperties, context, parentWindow(), file.c_str()));
}

}  // namespace

int PropertiesSCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                              DiagnosticList& diagnostics) {
  std::vector<ProviderBatch> batches =
      batchesOf(units, PropertiesName, "Getting SCC Context to show properties");
  if (batches.empty() || !offers(providerState().dll.SccProperties, PropertiesName, diagnostics))
    return 0;
  DisplayCommand display(units);
  std::size_t position = 0;
  int result = 1;
  for (ProviderBatch& batch : batches) {
    batch.begin(position, units.size());
    for (std::size_t i = 0; i < batch.names().size(); ++i) {
      const long code = showProperties(batch.names()[i], batch.context());
      if (display.conclude(code, {batch.units()[i]})) continue;
      markFailed(code, batch.report(i));
      result = 0;
    }
  }
  return result;
}

}  // namespace veldra
