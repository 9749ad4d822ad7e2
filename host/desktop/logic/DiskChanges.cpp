#include "host/desktop/logic/DiskChanges.h"

#include <filesystem>
#include <system_error>

namespace veldra::host::desktop {
namespace fs = std::filesystem;

DiskChanges::Facts DiskChanges::factsOf(const std::string& file) {
  std::error_code failed;
  const fs::file_status status = fs::status(file, failed);
  if (failed || !fs::is_regular_file(status)) return {};
  Facts facts;
  facts.exists = true;
  facts.isWritable = (status.permissions() & fs::perms::owner_write) != fs::perms::none;
  facts.size = fs::file_size(file, failed);
  facts.time = fs::last_write_time(file, failed).time_since_epoch().count();
  return facts;
}

void DiskChanges::remember(const Project& project) {
  m_known.clear();
  for (const UnitCore* unit : project.files()) {
    const std::string file = unit->fullFileName();
    m_known[file] = factsOf(file);
  }
}

void DiskChanges::remember(const std::string& file) {
  const auto known = m_known.find(file);
  if (known != m_known.end()) known->second = factsOf(file);
}

DiskChange DiskChanges::look(const Project& project) {
  DiskChange change;
  for (const UnitCore* unit : project.files()) {
    const std::string file = unit->fullFileName();
    const Facts now = factsOf(file);
    const auto [known, isNew] = m_known.try_emplace(file, now);
    if (isNew || known->second == now) continue;
    const Facts before = known->second;
    known->second = now;
    if (!now.exists) {
      change.vanished.push_back(file);
    } else if (before.exists && before.time == now.time && before.size == now.size) {
      change.mode.push_back(file);
    } else {
      (unit->isModified() ? change.conflict : change.reload).push_back(file);
    }
  }
  return change;
}

}  // namespace veldra::host::desktop
