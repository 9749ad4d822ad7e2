#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Checks units in, all with one call: those that the user has checked out. Of the others the
/// controlled ones are reported, and uncontrolled ones are reported or, where the project's SCC
/// property "AddNewUnitsToArchiveDuringCheckin" allows it, added to the archive on the way.
///
/// The result is 1 when there was nothing to check in, and 0 otherwise, whatever became of it.
class CheckInSCC : public CMWorkspaceOperation {
 public:
  /// The first argument is the comment; without any argument this throws `std::invalid_argument`.
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
};

}  // namespace veldra
