#include "cm/tool/CMFetch.h"

#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"

namespace veldra {

const OperationRow& CMFetch::row() const {
  static constexpr OperationRow row{
      .name = "Fetch",
      .templateProperty = IPN::CMFetch,
      .traceBefore = "Executing the following command to fetch the file: ",
      .traceAfter = "Fetch command returned the following: ",
      .keeps = KeepRule::EveryFile,
      .handlerKind = CMVDYHandler::Fetch};
  return row;
}

void CMFetch::after(UnitRun& run) const {
  const std::string oldExtension = IProject::staticGetOldFileExtension();
  if (run.handler == nullptr || oldExtension.empty() ||
      lowerCase(run.unit->getFileName()).find(oldExtension) == std::string::npos) {
    return;
  }
  // A project file may change from its old to its new name; the list goes on with its unit.
  for (const std::string& name : {run.handler->oldFileName(), run.handler->newFileName()}) {
    if (IUnit* const unit = IUnit::getByFile(name)) run.unit = unit;
  }
}

}  // namespace veldra
