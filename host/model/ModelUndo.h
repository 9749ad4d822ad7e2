#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/host/Undoer.h"
#include "host/model/Handle.h"
#include "host/model/Json.h"

namespace veldra::host {

class UnitCore;

/// Takes back what the last outermost transaction changed in the contents of units. Transactions
/// nest; changes outside of any cannot be taken back.
class ModelUndo : public Undoer {
 public:
  void startTransaction(const IViewParameters* view, int undoFlag) override;
  void endTransaction() override;

  /// Called before a unit's body changes.
  void remember(UnitCore& unit, const Json& body);
  bool canUndo() const { return m_depth == 0 && !m_snapshots.empty(); }
  /// Puts the bodies back as they were; units that are gone since are left out. The units count as
  /// modified, since their files may have been saved in between.
  void undo();

  int depth() const { return m_depth; }

 private:
  struct Snapshot {
    std::shared_ptr<const Lifeline> lifeline;
    UnitCore* unit;
    Json body;
  };

  int m_depth = 0;
  std::vector<Snapshot> m_snapshots;
};

}  // namespace veldra::host
