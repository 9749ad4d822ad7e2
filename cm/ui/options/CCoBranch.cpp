#include "cm/ui/options/CCoBranch.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

namespace {

OptionPresets branchPresets() {
  OptionPresets presets;
  presets.command = DialogCommand::CheckOutBranch;
  return presets;
}

}  // namespace

CCoBranch::CCoBranch(QWidget* parent)
    : OptionDialog(ControlId::BranchDialog, branchPresets(), parent),
      m_branch(addLine(ControlId::BranchName, tr("&Branch:"))) {
  m_branch->setFocus();
}

CommandOptions CCoBranch::options() const {
  CommandOptions chosen;
  chosen.label = bytesOf(m_branch->text());
  return chosen;
}

}  // namespace veldra
