#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

/// Units that belong to one context, with their files and the reports of their way.
class ProviderBatch {
 public:
  ProviderBatch(const char* operation, const pvContextStruct& context)
      : m_operation(operation), m_context(context) {}

  void add(IUnit& unit) {
    m_units.push_back(&unit);
    m_names.push_back(unit.getFullFileName());
  }
  /// Begins the reports; `position` counts on over all batches of an operation.
  void begin(std::size_t& position, std::size_t count);
  /// Takes the units out for which `staysOut` holds; their reports end as they stand.
  template <class StaysOut>
  void leaveOut(StaysOut staysOut) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_units.size(); ++i) {
      if (staysOut(i, *m_reports[i])) continue;
      if (kept != i) {
        m_units[kept] = m_units[i];
        m_names[kept] = std::move(m_names[i]);
        m_reports[kept] = std::move(m_reports[i]);
      }
      ++kept;
    }
    m_units.resize(kept);
    m_names.resize(kept);
    m_reports.resize(kept);
  }

  bool empty() const { return m_units.empty(); }
  const UnitList& units() const { return m_units; }
  const std::vector<std::string>& names() const { return m_names; }
  UnitReport& report(std::size_t index) { return *m_reports[index]; }
  const pvContextStruct& record() const { return m_context; }
  void* context() const { return m_context.getpvContextPtr(); }

  /// The provider's status words; invalid where it cannot say.
  std::vector<std::int32_t> status() const;
  /// Tells the user of a code that is no success, and ends the reports of the units whose status
  /// says that nothing became of them: those where `(status & bit) != 0` differs from `wanted`.
  /// True when the whole batch succeeded.
  bool conclude(long code, std::int32_t bit, bool wanted);

 private:
  const char* m_operation;
  const pvContextStruct& m_context;
  UnitList m_units;
  std::vector<std::string> m_names;
  std::vector<std::unique_ptr<UnitReport>> m_reports;
};

/// Sorts units by their contexts, in the order of the list; null units are left out. Empty when a
/// unit has no context: the user has been told.
std::vector<ProviderBatch> batchesOf(const UnitList& units, const char* operation,
                                     const char* contextLine);

/// Whether the provider has an entry point. Otherwise one diagnostic says that it lacks the
/// operation.
template <class Function>
bool offers(EntrySlot<Function>& slot, const char* operation, DiagnosticList& diagnostics) {
  if (providerState().dll.has(slot)) return true;
  reportLack(operation, slot.name, diagnostics);
  return false;
}
void reportLack(const char* operation, const char* entryPoint, DiagnosticList& diagnostics);

/// Whether a code is no failure, and nothing that the user needs to hear: success, a file that is
/// to be loaded again, or the user's own cancel.
bool isQuiet(long code);

}  // namespace veldra
