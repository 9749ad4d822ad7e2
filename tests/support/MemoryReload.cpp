#include "tests/support/MemoryReload.h"

namespace veldra::test {
namespace {

IUnit* carryOut(ReloadScript::Outcome outcome, MemoryModel& model, IUnit* unit) {
  switch (outcome) {
    case ReloadScript::Outcome::Replace:
      return &model.replace(unit);
    case ReloadScript::Outcome::SameObject:
      return unit;
    case ReloadScript::Outcome::Lose:
      break;
  }
  return nullptr;
}

}  // namespace

IUnit* MemoryQuickATM::reloadUnit(IUnit* unit) {
  m_journal.add("reload " + unit->getFileName());
  IUnit* const reloaded = carryOut(m_script.quickReload, m_model, unit);
  auto* const known = dynamic_cast<MemoryUnit*>(reloaded);
  if (known != nullptr && !m_script.computedFileName.empty()) {
    known->record.computedFileName = m_script.computedFileName;
  }
  return reloaded;
}

IUnit* MemoryATM::addToModel(const std::string& fileName) {
  m_journal.add("add " + fileName + " at " + m_place);
  if (IUnit* known = m_model.unitByFile(fileName))
    return carryOut(m_script.addToModel, m_model, known);
  if (m_script.addToModel == ReloadScript::Outcome::Lose) return nullptr;
  return &m_model.addUnit(MemoryFiles::nameOf(fileName));
}

IUnit* MemoryFileCompare::atm(IUnit* unit) {
  m_journal.add("refresh " + unit->getFileName());
  return carryOut(m_script.fileCompare, m_model, unit);
}

void MemoryModelFileHandler::prepare(Kind kind) {
  m_journal.add("handler-prepare " + std::to_string(kind) + " " + m_file);
}

std::string MemoryModelFileHandler::withExtension(const std::string& extension) const {
  if (!m_file.ends_with(".vdr") && !m_file.ends_with(".vdy")) return {};
  return m_file.substr(0, m_file.size() - 4) + extension;
}

}  // namespace veldra::test
