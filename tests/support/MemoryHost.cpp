#include "tests/support/MemoryHost.h"

namespace veldra::test {

std::unique_ptr<ATMFacade> MemoryHost::createATMFacade(IUnit* owner) {
  if (!offersOptionalFacilities) return nullptr;
  const std::string place = owner != nullptr ? owner->getFileName() : "no owner";
  return std::make_unique<MemoryATM>(journal, memoryModel, reloads, place);
}

std::unique_ptr<ATMFacade> MemoryHost::createATMFacade(const std::string& directory) {
  if (!offersOptionalFacilities) return nullptr;
  return std::make_unique<MemoryATM>(journal, memoryModel, reloads, directory);
}

std::unique_ptr<CCMFileCompare> MemoryHost::createFileCompare(const std::string& fullFileName) {
  if (!offersOptionalFacilities) return nullptr;
  return std::make_unique<MemoryFileCompare>(journal, memoryModel, reloads, fullFileName);
}

std::unique_ptr<CMVDYHandler> MemoryHost::createModelFileHandler(const std::string& fullFileName) {
  if (!offersOptionalFacilities) return nullptr;
  return std::make_unique<MemoryModelFileHandler>(journal, fullFileName);
}

}  // namespace veldra::test
