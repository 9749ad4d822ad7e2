#include "host/model/ModelUndo.h"

#include <algorithm>

#include "host/model/UnitCore.h"

namespace veldra::host {

void ModelUndo::startTransaction(const IViewParameters* view, int undoFlag) {
  (void)view;
  (void)undoFlag;
  if (m_depth++ == 0) m_snapshots.clear();
}

void ModelUndo::endTransaction() {
  if (m_depth > 0) --m_depth;
}

void ModelUndo::remember(UnitCore& unit, const Json& body) {
  if (m_depth == 0) return;
  const bool known =
      std::any_of(m_snapshots.begin(), m_snapshots.end(), [&unit](const Snapshot& snapshot) {
        return snapshot.unit == &unit && snapshot.lifeline->object;
      });
  if (!known) m_snapshots.push_back({unit.lifeline().of(unit.unit()), &unit, body});
}

void ModelUndo::undo() {
  if (!canUndo()) return;
  for (const Snapshot& snapshot : m_snapshots) {
    if (snapshot.lifeline->object) snapshot.unit->restoreBody(snapshot.body);
  }
  m_snapshots.clear();
}

}  // namespace veldra::host
