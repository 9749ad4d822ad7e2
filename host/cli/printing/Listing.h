#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// Rows of texts, the first one with the headings, as columns that are as wide as they have to be.
void printTable(const std::vector<std::vector<std::string>>& rows, std::ostream& out);

/// A table of units for people: mode, version, locker, type, name and path.
void printListing(const std::vector<UnitRecord>& units, std::ostream& out);

/// A paragraph about one unit, a line a property.
void printProperties(const UnitRecord& unit, std::ostream& out);

/// What a dry run would do for one unit; `action` is, for example, "check in".
void printPlan(const UnitRecord& unit, const char* action, std::ostream& out);

/// A remark about the unit that was printed last; nothing when it is empty.
void printRemark(const std::string& remark, std::ostream& out);

}  // namespace veldra::host::cli
