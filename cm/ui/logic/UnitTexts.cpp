#include "cm/ui/logic/UnitTexts.h"

#include <string_view>

#include "cm/core/CMStatus.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

bool isStub(const IUnit& unit) {
  return (unit.getFlags() & UnitFlag::Stub) != 0;
}

bool isEmbedded(const IUnit& unit) {
  // The query does not change the unit; it hands out what may be changed.
  return const_cast<IUnit&>(unit).asEmbededFile() != nullptr;
}

std::string readOrWrite(const IUnit& unit) {
  const bool readOnly =
      isEmbedded(unit) ? !omFileHasWritePermission(unit.getFullFileName()) : unit.isReadOnly();
  return readOnly ? "RO" : "RW";
}

std::string activeProjectDirectory() {
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  return project != nullptr ? project->getProjectDirectory() : std::string();
}

std::string_view withoutDirectory(std::string_view path, const std::string& directory) {
  if (directory.empty() || !startsWithNoCase(path, directory)) return path;
  std::string_view rest = path.substr(directory.size());
  if (!rest.empty() && lastSeparator(rest.substr(0, 1)) == 0) rest.remove_prefix(1);
  return rest;
}

std::string displayName(const IUnit& unit) {
  std::string term = unit.getTermName();
  return term.empty() ? unit.getName() : term;
}

}  // namespace

std::string shortPathOf(const std::string& fullFileName) {
  return std::string(withoutDirectory(fullFileName, activeProjectDirectory()));
}

std::string nameNShortPath(const IUnit* unit) {
  return unit != nullptr ? shortPathOf(unit->getFullFileName()) : std::string();
}

UnitTexts::UnitTexts()
    : m_projectDirectory(activeProjectDirectory()),
      m_marksStubs(CMProperty::getProjectBool(IPN::General, "ShowStubUnitMode", true)),
      m_isConnected(CMProperty::getIsConnected()) {}

std::string UnitTexts::accessMark(const IUnit& unit) const {
  return m_marksStubs && isStub(unit) ? "U" : readOrWrite(unit);
}

std::string UnitTexts::cell(const IUnit& unit, std::int32_t column) const {
  const bool isProviders = column == UnitColumn::Controlled || column == UnitColumn::CheckedOut;
  std::string storage;
  return isProviders && !m_isConnected ? std::string()
                                       : std::string(sortKey(unit, column, storage));
}

std::string_view UnitTexts::sortKey(const IUnit& unit, std::int32_t column,
                                    std::string& storage) const {
  switch (column) {
    case UnitColumn::File:
      storage = unit.getFullFileName();
      return withoutDirectory(storage, m_projectDirectory);
    case UnitColumn::Name:
      return storage = displayName(unit);
    case UnitColumn::Version:
      return storage = m_headers.getVersion(&unit);
    case UnitColumn::Access:
      return storage = accessMark(unit);
    case UnitColumn::Controlled:
      return storage = CMStatus::getControlled(&unit);
    case UnitColumn::CheckedOut:
      return storage = CMStatus::getCheckedOut(&unit);
    default:
      return {};
  }
}

std::string UnitTexts::treeLabel(const IUnit& unit) const {
  std::string mark = isStub(unit) ? unit.getURMark() : readOrWrite(unit);
  // Hosts and scripts read this label: an embedded file has its mark bare, others in parentheses.
  if (!isStub(unit) && !isEmbedded(unit)) mark = '(' + mark + ')';
  return unit.getName() + " (" + m_headers.getVersion(&unit) + ") " + mark;
}

}  // namespace veldra
