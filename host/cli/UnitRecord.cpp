#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

const char* resultWord(UnitResult result) {
  switch (result) {
    case UnitResult::Done:
      return "done";
    case UnitResult::Planned:
      return "planned";
    case UnitResult::Unknown:
      return "unknown";
    case UnitResult::Refused:
      return "refused";
    case UnitResult::Declined:
      return "declined";
    case UnitResult::Failed:
      return "failed";
    case UnitResult::Skipped:
      return "skipped";
    case UnitResult::Cancelled:
      return "cancelled";
  }
  return "failed";
}

}  // namespace veldra::host::cli
