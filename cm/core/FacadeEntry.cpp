#include "cm/core/FacadeEntry.h"

#include <array>
#include <cstddef>

#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The user's words for the kinds of operations, by their number.
constexpr std::array<const char*, 17> OperationNames{"Lock",           "Fetch",
                                                     "Unlock",         "History",
                                                     "Check In",       "Check Out",
                                                     "Add to Archive", "Add Directory",
                                                     "Move",           "Undo Check Out",
                                                     "Properties",     "List Archive",
                                                     "Delete",         "Delete Directory",
                                                     "Rename",         "Connect to Archive",
                                                     "Run Command"};

}  // namespace

int reportEscape(CMTranscationType type, const char* what) noexcept {
  try {
    const char* const operation = OperationNames.at(static_cast<std::size_t>(type));
    notifyUserAndAsk(formatMessage(MessageId::InternalError, {operation, what}),
                     MessageBox::IconError);
  } catch (...) {
    // Even the report failed; 0 still tells the caller that nothing was done.
  }
  return 0;
}

bool takesProvider(Route route) {
  return route == Route::AlwaysProvider ||
         (route == Route::Selected && CMProperty::useSccCompliantTool() != 0);
}

int runEntry(const UnitEntry& entry, UnitList& units, ArgumentList& arguments,
             DiagnosticList& diagnostics) {
  return enterFacade(entry.type, [&] {
    if (entry.checkUnits) CMTranscation::checkUnitsForOperation(units);
    if (entry.needsUnits && units.empty()) return 0;

    bool provider = takesProvider(entry.route);
    const bool hybrid = provider && entry.prefersTool != nullptr && entry.prefersTool(units);
    provider = provider && !hybrid;
    const UnitEntry::Function function = provider ? entry.provider : entry.tool;
    BackEnd& backEnd = provider ? *backEnds().provider : *backEnds().tool;
    const int result =
        function != nullptr ? (backEnd.*function)({units, arguments, diagnostics, hybrid}) : 0;
    if (entry.after != nullptr) entry.after();
    return result;
  });
}

int runEntry(const ItemEntry& entry, CMArchiveItemList& items, ArgumentList& arguments,
             DiagnosticList& diagnostics) {
  return enterFacade(entry.type, [&] {
    const bool provider = takesProvider(entry.route);
    const ItemEntry::Function function = provider ? entry.provider : entry.tool;
    BackEnd& backEnd = provider ? *backEnds().provider : *backEnds().tool;
    return function != nullptr ? (backEnd.*function)({items, arguments, diagnostics}) : 0;
  });
}

}  // namespace veldra
