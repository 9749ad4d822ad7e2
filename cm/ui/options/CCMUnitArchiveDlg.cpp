#include "cm/ui/options/CCMUnitArchiveDlg.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/UnitArchive.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/PathBrowse.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMUnitArchiveDlg::CCMUnitArchiveDlg(IUnit* unit, QWidget* parent)
    : QDialog(parent),
      m_unit(UnitList{unit}),
      m_wasConnected(CMProperty::getIsConnected()),
      m_path(new QLineEdit(this)) {
  setWindowTitle(unit != nullptr ? tr("Archive of %1").arg(shown(unit->getName()))
                                 : tr("Archive of a Unit"));
  control(this, ControlId::UnitArchiveDialog, windowTitle());
  if (unit != nullptr) unit->getSccArchiveRecursive(m_formerProject, m_formerAuxPath);
  addFields();
  showArchive();
  m_path->setFocus();
}

void CCMUnitArchiveDlg::addFields() {
  auto* const grid = new QGridLayout(this);
  auto* const label = new QLabel(tr("Archive &path:"), this);
  control(m_path, ControlId::UnitArchivePath, tr("Archive path"));
  label->setBuddy(m_path);
  grid->addWidget(label, 0, 0, 1, 3);
  grid->addWidget(m_path, 1, 0, 1, 3);
  auto* const file = addButton(ControlId::UnitArchiveBrowseFile, tr("F&ile..."), nullptr);
  auto* const folder = addButton(ControlId::UnitArchiveBrowseFolder, tr("F&older..."), nullptr);
  connect(file, &QPushButton::clicked, m_path, [this] { browseInto(m_path, PathKind::File); });
  connect(folder, &QPushButton::clicked, m_path, [this] { browseInto(m_path, PathKind::Folder); });
  grid->addWidget(file, 2, 0);
  grid->addWidget(folder, 2, 1);
  grid->addWidget(
      addButton(ControlId::UnitArchiveAssociate, tr("&Associate"), &CCMUnitArchiveDlg::associate),
      3, 0);
  grid->addWidget(addButton(ControlId::UnitArchiveAssociateNew, tr("Associate &New..."),
                            &CCMUnitArchiveDlg::associateNew),
                  3, 1);
  grid->addWidget(addButton(ControlId::UnitArchiveDisassociate, tr("&Disassociate"),
                            &CCMUnitArchiveDlg::disassociate),
                  3, 2);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  describeButtons(*buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &CCMUnitArchiveDlg::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &CCMUnitArchiveDlg::reject);
  grid->addWidget(buttons, 4, 0, 1, 3);
  setMinimumWidth(460);
}

QPushButton* CCMUnitArchiveDlg::addButton(int id, const QString& caption,
                                          void (CCMUnitArchiveDlg::*pressed)()) {
  QString name = caption;
  auto* const button = control(new QPushButton(caption, this), id, name.remove(QLatin1Char('&')));
  button->setAutoDefault(false);
  if (pressed != nullptr) connect(button, &QPushButton::clicked, this, pressed);
  return button;
}

void CCMUnitArchiveDlg::showArchive() {
  const IUnit* const unit = m_unit.at(0);
  if (unit != nullptr) m_path->setText(QString::fromStdString(UnitArchive::offered(*unit)));
}

void CCMUnitArchiveDlg::associate() {
  IUnit* const unit = m_unit.at(0);
  if (unit == nullptr) return dialogWarning(dialogText(MessageId::SelectionGone));
  if (UnitArchive::associate(*unit, bytesOf(m_path->text().trimmed()), false)) showArchive();
}

void CCMUnitArchiveDlg::associateNew() {
  IUnit* const unit = m_unit.at(0);
  if (unit == nullptr) return dialogWarning(dialogText(MessageId::SelectionGone));
  if (UnitArchive::associate(*unit, bytesOf(m_path->text().trimmed()), true)) showArchive();
}

void CCMUnitArchiveDlg::disassociate() {
  IUnit* const unit = m_unit.at(0);
  if (unit == nullptr) return dialogWarning(dialogText(MessageId::SelectionGone));
  UnitArchive::disassociate(*unit);
  m_path->clear();
}

void CCMUnitArchiveDlg::reject() {
  if (IUnit* const unit = m_unit.at(0)) {
    std::string project;
    std::string auxPath;
    unit->getSccArchiveRecursive(project, auxPath);
    CMProperty::setIsConnected(m_wasConnected);
    const bool differs = project != m_formerProject || auxPath != m_formerAuxPath;
    if (differs) unit->setSccArchive(m_formerProject, m_formerAuxPath);
  }
  QDialog::reject();
}

}  // namespace veldra
