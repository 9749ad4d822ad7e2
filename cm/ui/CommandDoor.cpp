#include "cm/ui/CommandDoor.h"

#include "cm/ui/OptionWindows.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/CommandRun.h"
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

}  // namespace

bool runCommandOn(int controlId, const UnitList& units, QWidget* parent, BatchResults* results) {
  for (const ButtonRow& button : buttonTable()) {
    if (button.controlId != controlId) continue;
    if (!allowsCommands() || !CommandWindow::allowsAnother()) return false;
    if (UserDefinedCommand::isBehind(button.command)) {
      return UserDefinedCommand::run(button.command, units);
    }
    if (results != nullptr) results->start();
    GivenUnits view(units, parent, results);
    if (button.command == DialogCommand::Compare) return UnitComparison(view).OnVddiff();
    const CommandRow* const row = commandRow(button.command);
    if (row == nullptr) return false;
    return CommandRun(view).run(*row);
  }
  return false;
}

}  // namespace veldra
