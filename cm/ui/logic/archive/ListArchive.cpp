#include "cm/ui/logic/archive/ListArchive.h"

#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/ui/logic/GuardedCall.h"

namespace veldra {

ListingOutcome::ListingOutcome() : m_commandsBefore(theCMToolShellInterface().commandCount()) {}

bool ListingOutcome::succeeded(int result) const {
  const CMToolShellInterface& tool = theCMToolShellInterface();
  return tool.commandCount() != m_commandsBefore ? !tool.lastCommandEnd().failed : result != 0;
}

bool listArchiveInto(CMArchiveItemListWrapper& items, const std::string& label,
                     DiagnosticList& diagnostics) {
  CMLabel labelArgument(label);
  ArgumentList arguments;
  if (!label.empty()) arguments.push_back(&labelArgument);
  const ListingOutcome outcome;
  const std::optional<int> result = guardedCall(
      [&] { return CMFacade::ListArchive(items.list(), arguments, diagnostics); }, diagnostics);
  return result && outcome.succeeded(*result);
}

}  // namespace veldra
