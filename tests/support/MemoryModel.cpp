#include "tests/support/MemoryModel.h"

#include <algorithm>

namespace veldra::test {
namespace {

UnitRecord recordFor(const std::string& fullName, const std::string& typeName) {
  UnitRecord record;
  record.fileName = MemoryFiles::nameOf(fullName);
  record.name = record.fileName.substr(0, record.fileName.rfind('.'));
  record.typeName = typeName;
  record.directory = MemoryFiles::directoryOf(fullName);
  return record;
}

/// Walks a copy, so that units may come and go meanwhile.
class CopiedUnits : public IObIterator {
 public:
  explicit CopiedUnits(UnitList units) : m_units(std::move(units)) {}
  IUnit* first() override {
    m_next = 0;
    return next();
  }
  IUnit* next() override { return m_next < m_units.size() ? m_units[m_next++] : nullptr; }

 private:
  UnitList m_units;
  std::size_t m_next = 0;
};

class JournalledCGGuard : public INObject::IgnoreCGModification {
 public:
  explicit JournalledCGGuard(Journal& journal) : m_journal(journal) { m_journal.add("cg ignored"); }
  ~JournalledCGGuard() override { m_journal.add("cg tracked"); }

 private:
  Journal& m_journal;
};

}  // namespace

MemoryProject& MemoryModel::openProject(const std::string& directory, const std::string& fileName) {
  const std::string fullName = directory + '/' + fileName;
  auto project =
      std::make_unique<MemoryProject>(m_journal, m_files, recordFor(fullName, "Project"));
  project->component.inheritFrom(&sharedSettings);
  project->configuration.inheritFrom(&sharedSettings);
  m_files.write(fullName, "content of " + fileName);
  m_activeProject = project.get();
  m_units.push_back(std::move(project));
  return *m_activeProject;
}

template <class Unit>
Unit& MemoryModel::add(const std::string& path, const std::string& typeName) {
  const std::string fullName = m_activeProject->getUnitDirectory() + '/' + path;
  auto unit = std::make_unique<Unit>(m_journal, m_files, recordFor(fullName, typeName));
  unit->inheritFrom(m_activeProject);
  m_files.write(fullName, "content of " + unit->record.fileName);
  Unit& added = *unit;
  m_units.push_back(std::move(unit));
  return added;
}

MemoryUnit& MemoryModel::addUnit(const std::string& path) {
  return add<MemoryUnit>(path, "Class");
}

MemoryPackage& MemoryModel::addPackage(const std::string& path) {
  return add<MemoryPackage>(path, "Package");
}

MemoryEmbeddedFile& MemoryModel::addEmbeddedFile(const std::string& path) {
  return add<MemoryEmbeddedFile>(path, "ControlledFile");
}

MemoryWorkspace& MemoryModel::addWorkspace(const std::string& path) {
  m_workspace = &add<MemoryWorkspace>(path, "Workspace");
  return *m_workspace;
}

std::vector<std::unique_ptr<IUnit>>::iterator MemoryModel::find(IUnit* unit) {
  return std::find_if(m_units.begin(), m_units.end(),
                      [unit](const auto& owned) { return owned.get() == unit; });
}

MemoryUnit& MemoryModel::replace(IUnit* unit) {
  auto fresh = std::make_unique<MemoryUnit>(
      m_journal, m_files, recordFor(unit->getFullFileName(), unit->getTypeName()));
  fresh->inheritFrom(m_activeProject);
  fresh->record.recordedFileName = unit->getRecordedFileName();
  fresh->record.computedFileName = unit->getComputedFileName();
  MemoryUnit& added = *fresh;
  *find(unit) = std::move(fresh);
  return added;
}

void MemoryModel::destroy(IUnit* unit) {
  m_units.erase(find(unit));
}

IUnit* MemoryModel::unitByFile(const std::string& fileName) {
  if (m_activeProject == nullptr) return nullptr;
  const std::string inProject = m_activeProject->getUnitDirectory() + '/' + fileName;
  for (const auto& unit : m_units) {
    const std::string fullName = unit->getFullFileName();
    if (fullName == fileName || fullName == inProject) return unit.get();
  }
  return nullptr;
}

std::unique_ptr<IObIterator> MemoryModel::repositoryFiles() {
  UnitList units;
  for (const auto& unit : m_units) units.push_back(unit.get());
  return std::make_unique<CopiedUnits>(std::move(units));
}

std::string MemoryModel::unitTypeOfExtension(const std::string& suffix) const {
  const auto found = unitTypes.find(suffix);
  return found == unitTypes.end() ? std::string() : found->second;
}

std::unique_ptr<INObject::IgnoreCGModification> MemoryModel::ignoreCGModification() {
  return std::make_unique<JournalledCGGuard>(m_journal);
}

}  // namespace veldra::test
