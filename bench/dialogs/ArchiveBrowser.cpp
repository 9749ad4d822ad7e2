#include <memory>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/dialogs/FirstFrame.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/archive/CCMArcCoDlg.h"
#include "cm/ui/widgets/Control.h"

namespace veldra::bench {

namespace {

constexpr std::size_t EntryCount = 100000;

/// An archive that has every unit of the project, as a tool lists it.
std::unique_ptr<CMArchiveItemListWrapper> archiveOf(const BenchProject& project) {
  auto items = std::make_unique<CMArchiveItemListWrapper>();
  for (const IUnit* unit : project.units(EntryCount)) {
    const std::string file = unit->getFullFileName().substr(project.folder().string().size() + 1);
    items->addTail(new CMArchiveItem(file, "12", CMArchiveItem::ReadOnly, "alice", {}));
  }
  return items;
}

}  // namespace

double openArchiveAgainstBareView() {
  const BenchProject project(EntryCount, "/bin/true");
  const std::unique_ptr<CMArchiveItemListWrapper> items = archiveOf(project);
  return openingAgainstBareView(
      9, [&] { return std::make_unique<CCMArcCoDlg>(items->list()); },
      controlName(ControlId::ArchiveList));
}

}  // namespace veldra::bench
