#include "cm/ui/archive/CCMArcCoDlg.h"

#include "cm/core/CMArchive.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/archive/ArchiveCommands.h"
#include "cm/ui/logic/archive/ArchiveComparison.h"
#include "cm/ui/logic/archive/ArchiveRows.h"
#include "cm/ui/logic/archive/ItemOperations.h"
#include "cm/ui/widgets/CommandButton.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

CCMArcCoDlg::CCMArcCoDlg(const CMArchiveItemList& items, QWidget* parent)
    : ItemWindow(QStringLiteral("archive"), ControlId::ArchiveList,
                 std::make_shared<ArchiveRows>(items), parent) {
  setWindowTitle(shown(dialogText(MessageId::ArchiveTitle, {CMArchive::getMainArchive()})));
  setWindowIcon(commandIcon(DialogCommand::ListArchive));
  setEmptyText(tr("The archive holds nothing of this project yet. Add units to it first."));
  addButton(ItemButton::CheckOutFromArchive, [this] { OnArcCo(); });
  addButton(ItemButton::FetchFromArchive, [this] { OnArcFetch(); });
  addButton(ItemButton::CompareModel, [this] { OnArcVdDiff(); });
  addButton(ItemButton::CompareVersions, [this] { OnArcCmDiff(); });
  addButton(ItemButton::CheckOutBranch, nullptr);
  start();
}

void CCMArcCoDlg::OnArcCo() {
  ArchiveCommands(*this).OnArcCo();
}

void CCMArcCoDlg::OnArcFetch() {
  ArchiveCommands(*this).OnArcFetch();
}

void CCMArcCoDlg::OnArcVdDiff() {
  ArchiveComparison(*this).OnArcVdDiff();
}

void CCMArcCoDlg::OnArcCmDiff() {
  ArchiveComparison(*this).OnArcCmDiff();
}

bool CCMArcCoDlg::CheckForDescendentsInSelectedItems() {
  return veldra::CheckForDescendentsInSelectedItems(loadedUnits(CmSelectedItems()));
}

}  // namespace veldra
