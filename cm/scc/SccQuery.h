#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/host/IUnit.h"

namespace veldra {

class pvContextStruct;

/// Asks the provider for the status of files and stores it in the units. A query that fails leaves
/// the units' states as they were. Nothing is asked while the project does not show CM status.
class SccQuery {
 public:
  /// One call for all names; its code, or -1 without a context. `status` has one entry per name.
  static long query(const std::vector<std::string>& names, std::int32_t* status, void* context);
  /// One call for one file between its trace lines.
  static long query(const std::string& name, std::int32_t& status, void* context);

  static void queryAndSetStatus(IUnit* unit, void* context);
  /// In one call, or one by one when the project's SCC property "QuerySCCStatusOneByOne" says so.
  static void queryAndSetStatus(const UnitList& units, void* context);
  static void queryAndSetStatusOneByOne(const UnitList& units, void* context);
  /// The units of the items' files, with those below them when `recursive`.
  static void queryAndSetStatus(const CMArchiveItemList& items, void* context, bool recursive);
};

}  // namespace veldra
