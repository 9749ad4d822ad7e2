#include "cm/scc/HistorySCC.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/DisplayCommand.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char Name[] = "History";
constexpr char ContextLine[] = "Getting SCC Context to show history";

long showHistory(FileNames files, void* context) {
  return callOnFiles(providerState().dll.SccHistory, CallLines::PrePostAndReturn, context,
                     parentWindow(), files, scc::LONG{0}, CMProperty::getPvOptions());
}

bool showsSeveralFiles() {
  return (providerState().capabilities & scc::SCC_CAP_HISTORY_MULTFILE) != 0;
}

bool showBatch(ProviderBatch& batch, std::size_t& position, std::size_t count) {
  batch.begin(position, count);
  const bool together = showsSeveralFiles();
  bool isShown = true;
  for (std::size_t i = 0; i < batch.names().size(); ++i) {
    UnitList units = together ? batch.units() : UnitList{batch.units()[i]};
    const long code = showHistory(together ? FileNames(batch.names()) : FileNames(batch.names()[i]),
                                  batch.context());
    if (!concludeDisplay(code, units)) {
      isShown = false;
      for (std::size_t k = together ? 0 : i; k < (together ? units.size() : i + 1); ++k) {
        markFailed(code, batch.report(k));
      }
    }
    if (together) break;
  }
  return isShown;
}

}  // namespace

int HistorySCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                           DiagnosticList& diagnostics) {
  std::vector<ProviderBatch> batches = batchesOf(units, Name, ContextLine);
  if (batches.empty() || !offers(providerState().dll.SccHistory, Name, diagnostics)) return 0;
  std::size_t position = 0;
  int result = 1;
  for (ProviderBatch& batch : batches) {
    if (!showBatch(batch, position, units.size())) result = 0;
  }
  return result;
}

int HistorySCC::ofItems(CMArchiveItemList& items, ArgumentList& /*arguments*/,
                        DiagnosticList& diagnostics) {
  const pvContextStruct* const context = contextFor(nullptr, ContextLine);
  if (context == nullptr || !offers(providerState().dll.SccHistory, Name, diagnostics)) return 0;
  int result = 1;
  for (const CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    const std::string file = item->getFullUnitFileName();
    IUnit* const unit = unitOfItem(*item);
    UnitList units = unit != nullptr ? UnitList{unit} : UnitList{};
    if (!concludeDisplay(showHistory(FileNames(file), context->getpvContextPtr()), units)) {
      result = 0;
    }
  }
  return result;
}

}  // namespace veldra
