#pragma once

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"

namespace veldra {

/// What distinguishes one listing of the tool from another; all are read by the same patterns.
struct ListingRow {
  const char* name;              ///< The user's word for it.
  const char* templateProperty;  ///< The property that holds its command template.
  const char* traceBefore;
  const char* traceAfter;
};

/// Runs the command and appends an item per record of its answer; the caller owns them. The result
/// of the last step.
int runListing(const ListingRow& row, CMArchiveItemList& items, ArgumentList& arguments);

/// Lists the versions that the project's files have here, for tools that leave none in the files:
/// the property "WorkspaceVersions". 0, and nothing is run, when the tool has no such command.
int listWorkspaceVersions(CMArchiveItemList& items, ArgumentList& arguments);

}  // namespace veldra
