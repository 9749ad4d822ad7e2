#pragma once

#include <cstddef>
#include <optional>

#include "cm/ui/logic/BatchResults.h"
#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// What a running command asks of the window that it was started from. Messages and yes-no
/// questions do not come this way but through the host (`IUserMessages`).
class CommandView {
 public:
  virtual ~CommandView() = default;

  virtual std::size_t GetSelectedCount() = 0;
  /// The selected units, read anew.
  virtual UnitList CmSelectedItems() = 0;
  /// Shows the option window; nothing when the user gives up.
  virtual std::optional<CommandOptions> askOptions(const OptionPresets& presets) = 0;
  /// From now until the end of the command units may be replaced or die: nothing may look at them.
  virtual void commandStarts(const CommandRow& row) = 0;
  virtual void commandEnds() = 0;
  /// After a command that did its work.
  virtual void DoAfterOpRefresh() = 0;
  /// After one that failed: only units that no longer exist have to go.
  virtual void dropGoneUnits() = 0;
  /// How the units of the command ended; null when the window does not follow that.
  virtual const BatchResults* results() const { return nullptr; }
};

/// Tells the view when units may not be looked at.
class RunningScope {
 public:
  RunningScope(CommandView& view, const CommandRow& row) : m_view(view) { view.commandStarts(row); }
  RunningScope(const RunningScope&) = delete;
  RunningScope& operator=(const RunningScope&) = delete;
  ~RunningScope() { m_view.commandEnds(); }

 private:
  CommandView& m_view;
};

}  // namespace veldra
