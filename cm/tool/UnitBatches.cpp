#include "cm/tool/UnitBatches.h"

#include <utility>

#include "cm/core/CMArchive.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra {

namespace {

constexpr char BatchForm[] = "Batch";

std::string batchProperty(const CommandTemplate& single) {
  return std::string(single.property) + BatchForm;
}

/// "unitList": a file with the names of units, for as long as this lives.
class UnitListFile : public CMArgument {
 public:
  explicit UnitListFile(const std::vector<IUnit*>& units) {
    if (installedHost() == nullptr) return;
    std::string names;
    for (const IUnit* unit : units) names += unit->getFullFileName() + '\n';
    m_path = installedHost()->environment().createTempFile(names);
  }
  UnitListFile(const UnitListFile&) = delete;
  UnitListFile& operator=(const UnitListFile&) = delete;
  ~UnitListFile() override {
    if (exists() && installedHost() != nullptr) installedHost()->environment().removeFile(m_path);
  }
  bool exists() const { return !m_path.empty(); }

  int isNamed(const std::string& keyword) const override {
    return equalsNoCase(keyword, "unitList") ? 1 : 0;
  }
  std::string substitute(const std::string& keyword) override {
    return isNamed(keyword) != 0 ? quotedIfContains(m_path, " ") : keyword;
  }

 private:
  std::string m_path;
};

}  // namespace

bool UnitBatches::offers(const CommandTemplate& single) const {
  const std::string property = batchProperty(single);
  return hasValue({.property = property.c_str(), .providerMetaclass = single.providerMetaclass});
}

void UnitBatches::add(IUnit& unit, const CommandTemplate& single) {
  std::string key = batchProperty(single);
  if (m_row.choosesArchive && CMArchive::getArchiveSelection() != CMArchive::ArchiveUnset) {
    std::string archive;
    CMProperty::getBatchArchiveRecursive(&unit, archive);
    key += '\n' + archive;
  }
  const auto [at, isNew] = m_groupOf.emplace(std::move(key), m_groups.size());
  if (isNew) m_groups.push_back({.single = single, .units = {}});
  m_groups[at->second].units.push_back(&unit);
}

void UnitBatches::run(const std::function<UnitPreparation(IUnit&)>& prepare) {
  for (const Group& group : m_groups) {
    if (group.units.size() < 2 || UnitProgress::isCancelled()) continue;
    if (m_row.choosesArchive) chooseArchiveOf(group.units.front());
    Group able{.single = group.single, .units = {}};
    Preparations preparations;
    for (IUnit* unit : group.units) {
      UnitPreparation preparation = prepare(*unit);
      // It is refused when its own turn comes.
      if (preparation.mustNotRun()) continue;
      able.units.push_back(unit);
      preparations.emplace(unit, std::move(preparation));
    }
    runGroup(able, std::move(preparations));
  }
}

UnitBatches::BatchAnswer UnitBatches::runCommand(const Group& group) {
  UnitListFile list(group.units);
  if (!list.exists()) return {};
  const PushedArgument pushed(m_arguments, list);
  const std::string command = expandedForm(group.single, BatchForm, m_arguments);
  if (command.empty()) return {};
  BatchAnswer answer;
  const int executed = runTraced(command, m_row, answer);
  answer.isWell = executed == 1 && !theCMToolShellInterface().lastCommandEnd().failed;
  return answer;
}

void UnitBatches::runGroup(const Group& group, Preparations preparations) {
  const BatchAnswer answer = runCommand(group);
  const auto done = answer.files(DoneMark);
  const auto unchanged = answer.files(UnchangedMark);
  for (const IUnit* unit : group.units) {
    const std::string file = unit->getFullFileName();
    if (!answer.isWell && !done.contains(file)) continue;
    UnitPreparation& preparation = m_done[unit] = std::move(preparations[unit]);
    preparation.wasUnchanged = m_row.tellsUnchanged && unchanged.contains(file);
  }
}

std::optional<UnitPreparation> UnitBatches::takeDone(const IUnit& unit) {
  const auto at = m_done.find(&unit);
  if (at == m_done.end()) return std::nullopt;
  UnitPreparation preparation = std::move(at->second);
  m_done.erase(at);
  return preparation;
}

}  // namespace veldra
