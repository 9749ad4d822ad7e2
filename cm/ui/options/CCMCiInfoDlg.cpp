#include "cm/ui/options/CCMCiInfoDlg.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMCiInfoDlg::CCMCiInfoDlg(const OptionPresets& from, QWidget* parent)
    : OptionDialog(ControlId::CheckInDialog, from, parent),
      m_comment(addComment(ControlId::CheckInComment)),
      m_label(addLine(ControlId::CheckInLabel, tr("&Label:"))),
      m_mode(addBox(ControlId::CheckInMode, tr("&Keep checked out"), from.mode, from.takesMode)),
      m_descendants(addDescendants(ControlId::CheckInDescendants)),
      m_informationFiles(addInformationFiles(ControlId::CheckInInformationFiles)) {
  m_comment->setFocus();
}

CommandOptions CCMCiInfoDlg::options() const {
  return {.comment = bytesOf(m_comment->toPlainText()),
          .label = bytesOf(m_label->text()),
          .archive = {},
          .mode = m_mode->isChecked(),
          .withDescendants = m_descendants->isChecked(),
          .withInformationFiles = m_informationFiles->isChecked()};
}

}  // namespace veldra
