#include "cm/ui/options/CCMFetchDlg.h"

#include "cm/ui/ControlIds.h"
#include "cm/ui/options/ComparePresets.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMFetchDlg::CCMFetchDlg(QWidget* parent) : CCMFetchDlg(comparePresets(), parent) {}

CCMFetchDlg::CCMFetchDlg(const OptionPresets& presets, QWidget* parent)
    : OptionDialog(ControlId::FetchDialog, presets, parent),
      m_version(addLine(ControlId::FetchLabel, tr("&Label or version:"))),
      m_descendants(addDescendants(ControlId::FetchDescendants)) {
  m_version->setPlaceholderText(tr("The latest version"));
  m_version->setFocus();
}

CommandOptions CCMFetchDlg::options() const {
  CommandOptions chosen;
  chosen.label = bytesOf(m_version->text());
  chosen.withDescendants = m_descendants->isChecked();
  return chosen;
}

}  // namespace veldra
