#include "cm/ui/options/CCMSccInfoDlg.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/ProviderOptions.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMSccInfoDlg::CCMSccInfoDlg(const OptionPresets& from, QWidget* parent)
    : OptionDialog(ControlId::ProviderDialog, from, parent),
      m_comment(addComment(ControlId::ProviderComment)),
      m_mode(addBox(ControlId::ProviderMode, tr("&Keep checked out"), from.mode, from.takesMode)),
      m_descendants(addDescendants(ControlId::ProviderDescendants)),
      m_informationFiles(addInformationFiles(ControlId::ProviderInformationFiles)),
      m_advanced(control(new QPushButton(tr("&Advanced..."), this), ControlId::ProviderAdvanced,
                         tr("Advanced options"), tr("Opens the provider's own options"))) {
  if (from.command == DialogCommand::CheckOut) m_mode->setText(tr("&Lock, to make changes"));
  m_advanced->setAutoDefault(false);
  m_advanced->setEnabled(ProviderOptions::IsAdvancedOptionsAvailable(from.command));
  connect(m_advanced, &QPushButton::clicked, this,
          [command = from.command] { (void)ProviderOptions::show(command); });
  form()->addRow(m_advanced);
  (from.takesComment ? static_cast<QWidget*>(m_comment) : m_descendants)->setFocus();
}

CommandOptions CCMSccInfoDlg::options() const {
  return {.comment = bytesOf(m_comment->toPlainText()),
          .label = {},
          .archive = {},
          .mode = m_mode->isChecked(),
          .withDescendants = m_descendants->isChecked(),
          .withInformationFiles = m_informationFiles->isChecked()};
}

}  // namespace veldra
