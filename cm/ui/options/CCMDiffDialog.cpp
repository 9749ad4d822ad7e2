#include "cm/ui/options/CCMDiffDialog.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/options/ComparePresets.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMDiffDialog::CCMDiffDialog(QWidget* parent)
    : OptionDialog(ControlId::DiffDialog, comparePresets(), parent),
      m_first(addLine(ControlId::DiffFirst, tr("&First version:"))),
      m_second(addLine(ControlId::DiffSecond, tr("&Second version:"))),
      m_descendants(addDescendants(ControlId::DiffDescendants)) {
  m_first->setFocus();
}

std::string CCMDiffDialog::firstVersion() const {
  return bytesOf(m_first->text());
}

std::string CCMDiffDialog::secondVersion() const {
  return bytesOf(m_second->text());
}

CommandOptions CCMDiffDialog::options() const {
  CommandOptions chosen;
  chosen.withDescendants = m_descendants->isChecked();
  return chosen;
}

}  // namespace veldra
