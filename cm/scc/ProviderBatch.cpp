#include "cm/scc/ProviderBatch.h"

#include <algorithm>
#include <utility>

#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/SccQuery.h"

namespace veldra {

void ProviderBatch::begin(std::size_t& position, std::size_t count) {
  for (const std::string& name : m_names) {
    m_reports.push_back(std::make_unique<UnitReport>(m_operation, ++position, count, name));
  }
}

std::vector<std::int32_t> ProviderBatch::status() const {
  std::vector<std::int32_t> status(m_names.size(), scc::SCC_STATUS_INVALID);
  if (SccQuery::query(m_names, status.data(), context()) != 0) {
    std::ranges::fill(status, scc::SCC_STATUS_INVALID);
  }
  return status;
}

bool ProviderBatch::conclude(long code, std::int32_t bit, bool wanted) {
  if (isQuiet(code) && code != scc::SCC_I_OPERATIONCANCELED) return true;
  if (!isQuiet(code)) succeeds(code, nullptr);
  // One code stands for all files: which of them are done, only their status tells.
  const std::vector<std::int32_t> now = status();
  for (std::size_t i = 0; i < now.size(); ++i) {
    const bool isDone = now[i] != scc::SCC_STATUS_INVALID && ((now[i] & bit) != 0) == wanted;
    if (!isDone) markFailed(code, *m_reports[i]);
  }
  return false;
}

std::vector<ProviderBatch> batchesOf(const UnitList& units, const char* operation,
                                     const char* contextLine) {
  std::vector<ProviderBatch> batches;
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    const pvContextStruct* const context = contextFor(unit, contextLine);
    if (context == nullptr) return {};
    const auto known = std::ranges::find_if(
        batches, [&](const ProviderBatch& batch) { return &batch.record() == context; });
    if (known != batches.end()) {
      known->add(*unit);
    } else {
      batches.emplace_back(operation, *context).add(*unit);
    }
  }
  return batches;
}

void reportLack(const char* operation, const char* entryPoint, DiagnosticList& diagnostics) {
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::ProviderLacks, {operation, entryPoint}),
                           nullptr);
}

bool isQuiet(long code) {
  return code == scc::SCC_OK || code == scc::SCC_I_RELOADFILE ||
         code == scc::SCC_I_OPERATIONCANCELED;
}

}  // namespace veldra
