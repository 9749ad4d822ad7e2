#include "cm/ui/CommandDoor.h"

#include <algorithm>

#include "cm/host/MessageIds.h"
#include "cm/ui/OptionWindows.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/CommandRun.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/UserDefinedCommand.h"
#include "cm/ui/logic/compare/UnitComparison.h"
#include "cm/ui/widgets/CommandWindow.h"

namespace veldra {

namespace {

/// Stands for a window that lists nothing.
class GivenUnits : public CommandView {
 public:
  GivenUnits(const UnitList& units, QWidget* parent, const BatchResults* results)
      : m_units(units), m_parent(parent), m_results(results) {}

  std::size_t GetSelectedCount() override { return m_units.size(); }
  UnitList CmSelectedItems() override { return m_units.alive(); }
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override {
    OptionPresets here = presets;
    // The dialog lets its user select what lies below; elsewhere a package may stand for it.
    if (presets.command == DialogCommand::AddToArchive) {
      here.offersDescendants = CheckForDescendentsInSelectedItems(m_units.alive());
    }
    return showOptionWindow(here, m_parent);
  }
  void commandStarts(const CommandRow&) override {}
  void commandEnds() override {}
  void DoAfterOpRefresh() override {}
  void dropGoneUnits() override {}
  const BatchResults* results() const override { return m_results; }

 private:
  LiveUnits m_units;
  QWidget* m_parent;
  const BatchResults* m_results;
};

bool runOn(DialogCommand command, GivenUnits& view, const UnitList& units) {
  if (UserDefinedCommand::isBehind(command)) return UserDefinedCommand::run(command, units);
  if (command == DialogCommand::Compare) return UnitComparison(view).OnVddiff();
  const CommandRow* const row = commandRow(command);
  return row != nullptr && CommandRun(view).run(*row);
}

}  // namespace

bool runCommandOn(int controlId, const UnitList& units, QWidget* parent, BatchResults* results) {
  const auto rows = buttonTable();
  const auto button = std::ranges::find(rows, controlId, &ButtonRow::controlId);
  if (button == rows.end()) return false;
  const DialogCommand command = button->command;
  bool isDone = false;
  const std::optional<std::string> fault = thrownBy([&] {
    if (!allowsCommands() || !CommandWindow::allowsAnother()) return;
    if (results != nullptr) results->start();
    GivenUnits view(units, parent, results);
    isDone = runOn(command, view, units);
  });
  if (fault) {
    dialogError(dialogText(MessageId::InternalError, {ButtonRules::caption(command), *fault}));
  }
  return isDone && !fault;
}

}  // namespace veldra
