#include "cm/ui/synchronize/CMSyncDlg.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "cm/host/MessageIds.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/FailureMessage.h"
#include "cm/ui/logic/synchronize/SyncCommand.h"
#include "cm/ui/logic/synchronize/SyncPossible.h"
#include "cm/ui/logic/synchronize/SyncSettings.h"
#include "cm/ui/widgets/CommandButton.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CMSyncDlg::CMSyncDlg(QWidget* parent)
    : ItemWindow(QStringLiteral("synchronize"), ControlId::SyncList,
                 std::make_shared<SyncListing>(), parent),
      m_listing(static_cast<SyncListing&>(rows())) {
  setWindowTitle(shown(ItemButtonRules::caption(ItemButton::Synchronize)));
  setWindowIcon(commandIcon(DialogCommand::Synchronize));
  setEmptyText(tr("The model and the archive are in step."));
  addButton(ItemButton::Synchronize, [this] { OnSyncCo(); });
  addButton(ItemButton::Refresh, [this] { OnSyncRefresh(); });
  addMethod();
  start();
}

bool CMSyncDlg::usesMethod() const {
  const BackEndMode mode = BackEndMode::current();
  return !mode.usesProvider && !mode.isBranchTool;
}

void CMSyncDlg::addMethod() {
  m_method = control(new QComboBox(this), ControlId::SyncMethod, tr("Compare by"),
                     tr("What tells whether a unit is up to date"));
  m_method->addItems({tr("Version in the header"), tr("Label")});
  m_label = control(new QLineEdit(this), ControlId::SyncLabel, tr("Label"),
                    tr("The label whose versions are compared"));
  auto* const explanation = control(new QLabel(hostText(MessageId::SyncComparesTimes), this),
                                    ControlId::SyncExplanation, tr("How units are compared"));
  explanation->setWordWrap(true);
  m_form = new QFormLayout;
  m_form->addRow(tr("Compare &by:"), m_method);
  m_form->addRow(tr("&Label:"), m_label);
  head()->addLayout(m_form);
  head()->addWidget(explanation);
  const bool isShown = usesMethod();
  for (QWidget* field : std::initializer_list<QWidget*>{m_method, m_label}) {
    field->setVisible(isShown);
    m_form->labelForField(field)->setVisible(isShown);
  }
  explanation->setVisible(!isShown);
  if (!isShown) return;
  const SyncSettings settings = SyncSettings::read();
  m_label->setText(shown(settings.label));
  m_method->setCurrentIndex(settings.byLabel ? 1 : 0);
  methodChosen(m_method->currentIndex());
  connect(m_method, &QComboBox::currentIndexChanged, this, &CMSyncDlg::methodChosen);
}

void CMSyncDlg::methodChosen(int entry) {
  m_label->setEnabled(entry != 0);
  m_form->labelForField(m_label)->setEnabled(entry != 0);
  if (entry == 0) m_label->clear();
}

std::string CMSyncDlg::label() const {
  return bytesOf(m_label->text());
}

bool CMSyncDlg::canSynchronize(int flag) {
  return veldra::canSynchronize(flag);
}

bool CMSyncDlg::listFirst(const std::string& label, DiagnosticList& diagnostics) {
  beginRefill();
  const bool isListed = m_listing.list(label, diagnostics);
  m_listing.fill();
  endRefill();
  sortItems();
  return isListed;
}

void CMSyncDlg::listAgain() {
  DiagnosticList diagnostics;
  if (listFirst(label(), diagnostics)) return;
  showFailure(MessageId::CommandFailed + static_cast<int>(DialogCommand::Synchronize), diagnostics);
}

void CMSyncDlg::OnSyncRefresh() {
  CmSelectedItems();
  commandStarts();
  listAgain();
  commandEnds();
}

void CMSyncDlg::OnSyncCo() {
  if (!SyncCommand(*this).OnSyncCo(label())) return;
  if (m_listing.size() == 0 && closesWhenInStep()) {
    // The command has not quite ended yet.
    QMetaObject::invokeMethod(this, &CMSyncDlg::OnCancel, Qt::QueuedConnection);
  }
}

void CMSyncDlg::refreshItems() {
  if (parent() != nullptr) {
    QCoreApplication::postEvent(parent(), new QEvent(static_cast<QEvent::Type>(RefreshMessage)));
  }
  OnSyncRefresh();
}

void CMSyncDlg::OnCancel() {
  if (isRunning()) return;
  if (usesMethod()) {
    SyncSettings{.byLabel = m_method->currentIndex() != 0, .label = label()}.write();
  }
  CommandWindow::reject();
}

void CMSyncDlg::flashDlgOnDiff(int code) {
  if (!canSynchronize(code)) return;
  CMSyncDlg dialog;
  DiagnosticList diagnostics;
  const bool isListed = dialog.listFirst(SyncSettings::read().label, diagnostics);
  if (isListed && dialog.m_listing.size() > 0) dialog.exec();
}

}  // namespace veldra
