#include "cm/ui/logic/synchronize/GivenUpFiles.h"

#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

constexpr char Aside[] = "_temp";

IEnvironment& environment() {
  return installedHost()->environment();
}

}  // namespace

GivenUpFiles::GivenUpFiles(CMArchiveItemList& items) {
  const std::string changedHere = dialogText(MessageId::SyncChangedHere);
  const CMArchiveItemList all = items;
  for (const CMArchiveItem* item : all) {
    const IUnit* const unit = item != nullptr ? item->getLoadedUnit() : nullptr;
    if (unit == nullptr || item->getStatus() != changedHere) continue;
    const std::string file = unit->getFullFileName();
    if (omFileExist(file) && !setAside(file)) items.remove(item);
  }
}

bool GivenUpFiles::setAside(const std::string& file) {
  auto copy = std::make_unique<KeptCopy>(KeepRule::EveryFile, file, "Synchronize");
  if (!copy->objection().empty()) {
    dialogError(copy->objection());
    return false;
  }
  if (!environment().moveFile(file, file + Aside)) {
    dialogError(formatMessage(MessageId::FileNotMoved, {file}));
    return false;
  }
  m_entries.push_back({file, std::move(copy)});
  return true;
}

GivenUpFiles::~GivenUpFiles() {
  for (const Entry& entry : m_entries) {
    if (omFileExist(entry.file)) {
      environment().removeFile(entry.file + Aside);
    } else {
      environment().moveFile(entry.file + Aside, entry.file);
    }
  }
}

}  // namespace veldra
