#include "cm/ui/options/CCMConnectToArc.h"

#include "cm/core/CMArchive.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/PathBrowse.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

namespace {

OptionPresets connectPresets() {
  OptionPresets presets;
  presets.command = DialogCommand::Connect;
  presets.window = OptionWindow::Connect;
  return presets;
}

}  // namespace

CCMConnectToArc::CCMConnectToArc(QWidget* parent)
    : OptionDialog(ControlId::ConnectDialog, connectPresets(), parent),
      m_archive(addLine(ControlId::ConnectArchive, tr("&Archive:"),
                        QString::fromStdString(CMArchive::getMainArchive()))) {
  m_archive->setPlaceholderText(tr("A folder, a file or an address"));
  form()->addRow(makeBrowseButton(ControlId::ConnectBrowse, m_archive, this));
  m_archive->setFocus();
}

CommandOptions CCMConnectToArc::options() const {
  CommandOptions chosen;
  chosen.archive = bytesOf(m_archive->text().trimmed());
  return chosen;
}

}  // namespace veldra
