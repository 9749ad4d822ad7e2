#pragma once

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/model/UnitOf.h"

namespace veldra::host {

/// The user's workspace: it remembers the units that reloads brought into the model. It has no
/// file.
class Workspace : public UnitOf<IWorkspace> {
 public:
  explicit Workspace(Project& project);
  void AddToSavedUnitsList(IUnit* unit) override;
  /// By full file name, each once, in the order in which they came.
  const std::vector<std::string>& savedUnits() const { return m_saved; }

 private:
  std::vector<std::string> m_saved;
  std::unordered_set<std::string> m_known;
};

}  // namespace veldra::host
