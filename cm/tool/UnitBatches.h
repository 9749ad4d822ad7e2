#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/host/CMVDYHandler.h"
#include "cm/host/IUnit.h"
#include "cm/host/Reload.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

/// What is made for a unit before its command runs.
struct UnitPreparation {
  std::unique_ptr<KeptCopy> kept;
  std::unique_ptr<CMVDYHandler> handler;
  std::unique_ptr<CCMFileCompare> compare;
  bool wasUnchanged = false;  ///< Its batch has found nothing to do for it.

  bool mustNotRun() const { return kept != nullptr && !kept->objection().empty(); }
};

/// The units of one operation that the tool can do by one command.
///
/// A tool offers that for a template when it has another one of the same name with "Batch" at its
/// end. In there, "unitList" is the path of a file with the full name of a unit in every line. A
/// batch that succeeds has done all of its units. One that fails has done those for which it
/// printed a line "done: " with the name; the others are left to the ordinary template, which tells
/// for each how it ends.
class UnitBatches {
 public:
  UnitBatches(const OperationRow& row, ArgumentList& arguments)
      : m_row(row), m_arguments(arguments) {}

  /// Whether the tool has a batch for the template.
  bool offers(const CommandTemplate& single) const;
  void add(IUnit& unit, const CommandTemplate& single);
  /// Runs a batch wherever it is worth it. `prepare` is called for every unit of a batch first.
  void run(const std::function<UnitPreparation(IUnit&)>& prepare);
  /// The preparation of a unit that a batch has done, once; nothing for any other unit.
  std::optional<UnitPreparation> takeDone(const IUnit& unit);

 private:
  /// Units with the same template and the same archive.
  struct Group {
    CommandTemplate single;
    std::vector<IUnit*> units;
  };
  using Preparations = std::unordered_map<const IUnit*, UnitPreparation>;

  void runGroup(const Group& group, Preparations preparations);
  struct BatchAnswer : ToolAnswer {
    bool isWell = false;  ///< It has done all units.
  };
  BatchAnswer runCommand(const Group& group);

  const OperationRow& m_row;
  ArgumentList& m_arguments;
  std::vector<Group> m_groups;
  std::unordered_map<std::string, std::size_t> m_groupOf;  ///< By template and archive.
  Preparations m_done;
};

}  // namespace veldra
