#include "cm/ui/options/CCMLockInfoDlg.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMLockInfoDlg::CCMLockInfoDlg(const OptionPresets& from, QWidget* parent)
    : OptionDialog(ControlId::LockDialog, from, parent),
      m_label(addLine(ControlId::LockLabel, tr("&Label:"))),
      m_descendants(addDescendants(ControlId::LockDescendants)),
      m_informationFiles(addInformationFiles(ControlId::LockInformationFiles)) {
  m_label->setFocus();
}

CommandOptions CCMLockInfoDlg::options() const {
  CommandOptions chosen;
  chosen.label = bytesOf(m_label->text());
  chosen.withDescendants = m_descendants->isChecked();
  chosen.withInformationFiles = m_informationFiles->isChecked();
  return chosen;
}

}  // namespace veldra
