#include "cm/ui/options/CCMCoInfoDlg.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMCoInfoDlg::CCMCoInfoDlg(const OptionPresets& from, QWidget* parent)
    : OptionDialog(ControlId::CheckOutDialog, from, parent),
      m_label(addLine(ControlId::CheckOutLabel, tr("&Label:"))),
      m_lock(addBox(ControlId::CheckOutLock,
                    from.saysReserved ? QStringLiteral("Reserved") : tr("&Lock, to make changes"),
                    from.mode)),
      m_descendants(addDescendants(ControlId::CheckOutDescendants)),
      m_informationFiles(addInformationFiles(ControlId::CheckOutInformationFiles)) {
  m_label->setPlaceholderText(tr("The latest version"));
  m_label->setFocus();
}

CommandOptions CCMCoInfoDlg::options() const {
  return {.comment = {},
          .label = bytesOf(m_label->text()),
          .archive = {},
          .mode = m_lock->isChecked(),
          .withDescendants = m_descendants->isChecked(),
          .withInformationFiles = m_informationFiles->isChecked()};
}

}  // namespace veldra
