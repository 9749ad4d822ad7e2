#include "cm/core/CMTraitFacade.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "cm/core/BackEnd.h"
#include "cm/core/DebugEcho.h"
#include "cm/core/FacadeEntry.h"
#include "cm/core/TextTools.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/templates/PropertyPattern.h"

namespace veldra {

struct CMHeaderReader::Patterns {
  PropertyPattern version{IPN::CMHeaderItsVersion};
  PropertyPattern locker{IPN::CMHeaderItsLocker};
  bool echoes = isDebugEchoOn();

  std::string read(const PropertyPattern& pattern, const IUnit* unit, const char* label) const {
    std::string value;
    // Headers come by the hundred thousand, and many tools keep none.
    if (!pattern.exists() && !echoes) return value;
    const std::string header = unit != nullptr ? unit->getCMHeader() : std::string();
    if (header.empty()) return value;
    const bool found = pattern.extract(header, value).result == 1;
    if (!found) value.clear();
    if (echoes && found) writeDebugEcho({label, ": '", value, "'\n"});
    if (echoes && !found) writeDebugEcho({"\n"});
    return value;
  }
};

CMHeaderReader::CMHeaderReader() : m_patterns(std::make_unique<Patterns>()) {}

CMHeaderReader::~CMHeaderReader() = default;

std::string CMHeaderReader::getVersion(const IUnit* unit) const {
  return m_patterns->read(m_patterns->version, unit, "version");
}

std::string CMHeaderReader::getLocker(const IUnit* unit) const {
  return m_patterns->read(m_patterns->locker, unit, "Locker");
}

std::string CMTraitFacade::getDefaultHeader() {
  std::string setting;
  std::string path;
  if (!CMProperty::getToolPropertyValue(IPN::CMHeaderFile, setting)) return {};
  CMProperty::ExpandPredefined(setting, path);
  // Directories cannot be read, and devices may never end.
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(path, unknown)) return {};
  std::ifstream file(path);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  // Old header files end with this byte.
  return text.substr(0, text.find('\xFF'));
}

std::string CMTraitFacade::getVersion(const IUnit* unit) {
  return CMHeaderReader().getVersion(unit);
}

std::string CMTraitFacade::getLocker(const IUnit* unit) {
  return CMHeaderReader().getLocker(unit);
}

CMTraitFacade& CMTraitFacade::instance() {
  static CMTraitFacade facade;
  return facade;
}

namespace {

bool isRefreshWanted() {
  std::string setting;
  if (CMProperty::getShowCMStatus() == 0 || CMProperty::getUseSCCtool() == 0) return false;
  CMProperty::getToolPropertyValue("RefreshCMStatusAtProjectOpenup", setting);
  if (equalsNoCase(setting, "Yes")) return true;
  return equalsNoCase(setting, "Ask User") &&
         notifyUserAndAsk(loadMessage(MessageId::RefreshQuestion),
                          MessageBox::YesNo | MessageBox::IconQuestion) == MessageBox::AnswerYes;
}

}  // namespace

void CMTraitFacade::RefreshCMStatus() {
  withoutEscape(TxnProperties, [] {
    return isRefreshWanted() ? backEnds().provider->refreshStatus(workspaceUnits()) : 0;
  });
}

int CMTraitFacade::queryStatus(const UnitList& units, std::vector<UnitStatus>& status) {
  status.clear();
  return withoutEscape(TxnProperties, [&] {
    return CMProperty::useSccCompliantTool() != 0 ? backEnds().provider->queryStatus(units, status)
                                                  : 0;
  });
}

}  // namespace veldra
