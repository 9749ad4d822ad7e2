#include "cm/core/CMTraitFacade.h"

#include <fstream>
#include <iterator>

#include "cm/core/DebugEcho.h"
#include "cm/host/IPN.h"
#include "cm/host/IUnit.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

std::string headerValue(const IUnit* unit, const char* propertyName, const char* label) {
  std::string value;
  const std::string header = unit != nullptr ? unit->getCMHeader() : std::string();
  if (header.empty()) return value;
  std::string extra;
  int found = 0;
  if (CMProperty::ExtractByProperty(propertyName, header, value, found, extra) == 1) {
    debugEcho({label, ": '", value, "'\n"});
    return value;
  }
  debugEcho({extra, "\n"});
  return {};
}

}  // namespace

std::string CMTraitFacade::getDefaultHeader() {
  std::string setting;
  std::string path;
  if (!CMProperty::getToolPropertyValue(IPN::CMHeaderFile, setting)) return {};
  CMProperty::ExpandPredefined(setting, path);
  std::ifstream file(path);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  // Old header files end with this byte.
  return text.substr(0, text.find('\xFF'));
}

std::string CMTraitFacade::getVersion(const IUnit* unit) {
  return headerValue(unit, IPN::CMHeaderItsVersion, "version");
}

std::string CMTraitFacade::getLocker(const IUnit* unit) {
  return headerValue(unit, IPN::CMHeaderItsLocker, "Locker");
}

}  // namespace veldra
