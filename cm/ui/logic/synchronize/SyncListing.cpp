#include "cm/ui/logic/synchronize/SyncListing.h"

#include <utility>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/archive/ListArchive.h"

namespace veldra {

namespace {

UnitList listWorkspace() {
  UnitList units;
  ArgumentList noArguments;
  DiagnosticList diagnostics;
  CMFacade::ListWorkspace(units, noArguments, diagnostics);
  return units;
}

bool isEmbeddedFile(const CMArchiveItem& item, IUnit* unit) {
  // A file of no known type could only be kept beside the model.
  return unit != nullptr ? unit->asEmbededFile() != nullptr : item.getType().empty();
}

}  // namespace

std::string syncStatusText(SyncStatus status) {
  switch (status) {
    case SyncStatus::NewInArchive:
      return dialogText(MessageId::SyncNewInArchive);
    case SyncStatus::ArchiveAhead:
      return dialogText(MessageId::SyncArchiveAhead);
    case SyncStatus::ChangedHere:
      return dialogText(MessageId::SyncChangedHere);
    default:
      return {};
  }
}

bool SyncListing::list(const std::string& label, DiagnosticList& diagnostics) {
  const UnitList units = listWorkspace();
  auto items = std::make_unique<CMArchiveItemListWrapper>();
  const bool usesProvider = CMProperty::getUseSCCtool() != 0;
  if (usesProvider) createDummyArchiveItems(units, *items);
  if (!listArchiveInto(*items, label, diagnostics)) return false;
  auto comparison = std::make_unique<ItemComparison>(units);
  if (!comparison->knowsVersions()) return false;
  m_rows.clear();
  m_archive = std::move(items);
  m_comparison = std::move(comparison);
  m_comparison->setStubExclusion(m_stubExclusion);
  m_newerInArchive.clear();
  readNameSettings();
  if (usesProvider) askProviderForNewer(units);
  return true;
}

void SyncListing::createDummyArchiveItems(const UnitList& units, CMArchiveItemListWrapper& items) {
  for (const IUnit* unit : units) {
    if (unit == nullptr) continue;
    items.addTail(new CMArchiveItem(unit->getFullFileName(), {}, CMArchiveItem::ReadOnly, {}, {}));
  }
}

void SyncListing::askProviderForNewer(const UnitList& units) {
  std::vector<UnitStatus> status;
  if (!CMProperty::getIsLoaded() || CMTraitFacade::queryStatus(units, status) == 0) return;
  for (std::size_t i = 0; i < status.size() && i < units.size(); ++i) {
    const bool isKnown = units[i] != nullptr && status[i].state != CMState::Invalid;
    if (isKnown && (status[i].state & CMState::OutOfDate) != 0) {
      m_newerInArchive.insert(units[i]->getFullFileName());
    }
  }
}

SyncStatus SyncListing::statusOf(const CMArchiveItem& item, const IUnit* unit) const {
  const SyncStatus status = m_comparison->getItemSyncStatus(&item, unit);
  // Files that nobody has touched look the same by their times; the provider knows better.
  const bool isNewer = status == SyncStatus::Same && unit != nullptr &&
                       m_newerInArchive.contains(unit->getFullFileName());
  if (!isNewer) return status;
  return unit->isReadOnly() ? SyncStatus::ArchiveAhead : SyncStatus::ChangedHere;
}

void SyncListing::fill() {
  m_rows.clear();
  m_status.clear();
  if (m_archive == nullptr) return;
  const bool hidesUnresolved =
      CMProperty::getProjectBool(IPN::General, "FilterUnresolvedUnitsInCMSynchDialog", false);
  std::unordered_set<const IUnit*> listed;
  for (CMArchiveItem* item : m_archive->list()) {
    if (item == nullptr) continue;
    IUnit* const unit = item->getLoadedUnit();
    if (isEmbeddedFile(*item, unit)) continue;
    if (hidesUnresolved && ItemComparison::getUnitRWStatus(unit) == "U") continue;
    const SyncStatus status = statusOf(*item, unit);
    if (status == SyncStatus::NothingToCompare || status == SyncStatus::Same) continue;
    if (status == SyncStatus::NewInArchive && m_comparison->usesProvider()) continue;
    // The archive lists units again that have a placeholder.
    if (unit != nullptr && !listed.insert(unit).second) continue;
    item->setStatus(syncStatusText(status));
    m_rows.push_back(item);
    m_status[item] = status;
  }
}

std::string SyncListing::header(int column) const {
  return dialogText(MessageId::SyncColumnHeader + column);
}

std::string SyncListing::cell(std::size_t row, int column) const {
  const CMArchiveItem& item = *m_rows[row];
  const IUnit* const unit = item.getLoadedUnit();
  switch (column) {
    case SyncColumn::Name:
      return nameOf(row, false);
    case SyncColumn::Type: {
      const std::string term = unit != nullptr ? unit->getTermName() : std::string();
      return term.empty() ? item.getType() : term;
    }
    case SyncColumn::Version:
      return m_comparison->getItemVersion(&item, unit);
    case SyncColumn::Access:
      return ItemComparison::getUnitRWStatus(unit);
    case SyncColumn::Status:
      return item.getStatus();
    default:
      return {};
  }
}

}  // namespace veldra
