#pragma once

#include <cstddef>
#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"

namespace veldra {

/// Lists the archive; the wrapper owns the items. `label` may be empty. False when the back end
/// reported a failure, or the tool failed half-way: then the list may lack something.
VELDRA_CM_EXPORT bool listArchiveInto(CMArchiveItemListWrapper& items, const std::string& label,
                                      DiagnosticList& diagnostics);

/// Judges a listing by the command that was run for it since this was made: the result of a listing
/// is that of its last pattern, which may fit nothing in a perfect list.
class ListingOutcome {
 public:
  ListingOutcome();
  bool succeeded(int result) const;

 private:
  std::size_t m_commandsBefore;
};

}  // namespace veldra
