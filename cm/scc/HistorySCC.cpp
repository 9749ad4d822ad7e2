#include "cm/scc/HistorySCC.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/DisplayCommand.h"
#include "cm/scc/ProviderBatch.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char HistoryName[] = "History";
constexpr char HistoryContextLine[] = "Getting SCC Context to show history";

long showHistory(FileNames files, void* context) {
  return callOnFiles(providerState().dll.SccHistory, CallLines::PrePostAndReturn, context,
                     parentWindow(), files, scc::LONG{0}, CMProperty::getPvOptions());
}

bool showsSeveralFiles() {
  return (providerState().capabilities & scc::SCC_CAP_HISTORY_MULTFILE) != 0;
}

bool showTogether(DisplayCommand& display, ProviderBatch& batch) {
  const long code = showHistory(FileNames(batch.names()), batch.context());
  if (display.conclude(code, batch.units())) return true;
  for (std::size_t i = 0; i < batch.names().size(); ++i) markFailed(code, batch.report(i));
  return false;
}

bool showEach(DisplayCommand& display, ProviderBatch& batch) {
  bool isShown = true;
  for (std::size_t i = 0; i < batch.names().size(); ++i) {
    const long code = showHistory(FileNames(batch.names()[i]), batch.context());
    if (display.conclude(code, {batch.units()[i]})) continue;
    markFailed(code, batch.report(i));
    isShown = false;
  }
  return isShown;
}

}  // namespace

int HistorySCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                           DiagnosticList& diagnostics) {
  std::vector<ProviderBatch> batches = batchesOf(units, HistoryName, HistoryContextLine);
  if (batches.empty() || !offers(providerState().dll.SccHistory, HistoryName, diagnostics))
    return 0;
  DisplayCommand display(units);
  std::size_t position = 0;
  int result = 1;
  for (ProviderBatch& batch : batches) {
    batch.begin(position, units.size());
    const auto show = showsSeveralFiles() ? &showTogether : &showEach;
    if (!show(display, batch)) result = 0;
  }
  return result;
}

int HistorySCC::ofItems(CMArchiveItemList& items, ArgumentList& /*arguments*/,
                        DiagnosticList& diagnostics) {
  const pvContextStruct* const context = contextFor(nullptr, HistoryContextLine);
  if (context == nullptr || !offers(providerState().dll.SccHistory, HistoryName, diagnostics))
    return 0;
  int result = 1;
  for (const CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    const std::string file = item->getFullUnitFileName();
    IUnit* const unit = unitOfItem(*item);
    UnitList units = unit != nullptr ? UnitList{unit} : UnitList{};
    DisplayCommand display(units);
    const long code = showHistory(FileNames(file), context->getpvContextPtr());
    if (!display.conclude(code, UnitList(units))) result = 0;
  }
  return result;
}

}  // namespace veldra
