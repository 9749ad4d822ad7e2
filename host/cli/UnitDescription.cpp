#include "host/cli/UnitDescription.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cm/core/ArchiveShortPath.h"
#include "host/model/PathNames.h"
#include "host/model/UnitCore.h"

namespace veldra::host::cli {

namespace {

std::string modeOf(IUnit& unit) {
  const UnitCore* const core = UnitCore::of(&unit);
  const bool isStub = (unit.getFlags() & UnitFlag::Stub) != 0;
  if (isStub || (core != nullptr && core->mode() == FileMode::Unknown)) return "U";
  return unit.isReadOnly() ? "RO" : "RW";
}

std::string modeOf(const CMArchiveItem& item) {
  switch (ListedMode::of(item)) {
    case ListedMode::ReadOnly:
      return "RO";
    case ListedMode::ReadWrite:
      return "RW";
    default:
      return "U";
  }
}

/// Describes items. Most files of a list are of the same type as the one before.
class ItemDescriber {
 public:
  void describe(const CMArchiveItem& item, UnitRecord& record) {
    record.path = m_shortPath.of(item, true);
    record.name = item.getName();
    record.type = typeOf(item);
    record.version = item.getVersion();
    record.mode = modeOf(item);
    record.locker = item.getLocker();
    if (HostSeparator != '/') std::ranges::replace(record.path, HostSeparator, '/');
  }

 private:
  const std::string& typeOf(const CMArchiveItem& item) {
    std::string suffix = item.getSuffix();
    if (!m_type || suffix != m_suffix) m_type = item.getType();
    m_suffix = std::move(suffix);
    return *m_type;
  }

  ArchiveShortPath m_shortPath;
  std::string m_suffix;
  std::optional<std::string> m_type;
};

}  // namespace

std::string projectPath(IUnit& unit) {
  const UnitCore* const core = UnitCore::of(&unit);
  std::string path = unit.asProject() != nullptr || core == nullptr ? unit.getFileName()
                                                                    : core->relativeFileName();
  if (HostSeparator != '/') std::ranges::replace(path, HostSeparator, '/');
  return path;
}

UnitRecord describeUnit(IUnit& unit, const CMHeaderReader& headers) {
  return {.path = projectPath(unit),
          .name = unit.getName(),
          .type = unit.getTypeName(),
          .version = headers.getVersion(&unit),
          .mode = modeOf(unit),
          .locker = headers.getLocker(&unit)};
}

UnitRecord describeItem(const CMArchiveItem& item) {
  UnitRecord record;
  ItemDescriber().describe(item, record);
  return record;
}

void describeItems(const CMArchiveItemList& items, const std::function<void(UnitRecord&)>& take) {
  ItemDescriber describer;
  UnitRecord record;  // Its texts' memory serves for one item after another.
  for (const CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    describer.describe(*item, record);
    take(record);
  }
}

}  // namespace veldra::host::cli
