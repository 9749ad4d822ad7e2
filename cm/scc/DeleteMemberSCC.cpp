#include "cm/scc/DeleteMemberSCC.h"

#include <vector>

#include "cm/scc/ArchiveFiles.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/ProviderBatch.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char DeleteName[] = "Delete";
constexpr char DeleteContextLine[] = "Getting SCC Context to perform delete";

long removeFiles(const std::vector<std::string>& names, const std::string& comment, void* context) {
  FileNames files(names);
  return callOnFiles(providerState().dll.SccRemove, CallLines::PrePostAndReturn, context,
                     parentWindow(), files, comment.c_str(), scc::LONG{0},
                     CMProperty::getPvOptions());
}

bool removeBatch(ProviderBatch& batch, const std::string& comment) {
  // What the archive does not have is gone already.
  const std::vector<std::int32_t> status = batch.status();
  batch.leaveOut([&](std::size_t i, UnitReport& /*report*/) {
    return status[i] != scc::SCC_STATUS_INVALID && (status[i] & scc::SCC_STATUS_CONTROLLED) == 0;
  });
  if (batch.empty()) return true;
  const long code = removeFiles(batch.names(), comment, batch.context());
  const bool isDone = batch.conclude(code, scc::SCC_STATUS_CONTROLLED, false);
  for (IUnit* unit : batch.units()) {
    updateUnit(*unit, {.modeLine = UnitUpdate::Mode, .statusLine = UnitUpdate::Status},
               &batch.record());
  }
  return isDone;
}

}  // namespace

int DeleteMemberSCC::operator()(UnitList& units, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool /*hybrid*/) {
  const UnitList all = UnitsByFile().with(units);
  std::vector<ProviderBatch> batches = batchesOf(all, DeleteName, DeleteContextLine);
  if (batches.empty() || !offers(providerState().dll.SccRemove, DeleteName, diagnostics)) return 0;
  const std::string comment = argumentValue(arguments, "log");
  std::size_t position = 0;
  int result = 1;
  for (ProviderBatch& batch : batches) {
    batch.begin(position, all.size());
    if (!removeBatch(batch, comment)) result = 0;
  }
  return result;
}

int DeleteMemberSCC::DeleteDirectory(const std::string& directory, ArgumentList& arguments,
                                     DiagnosticList& diagnostics, bool /*flag*/, IDObject* object) {
  const pvContextStruct* const context =
      contextFor(object != nullptr ? object->getSaveUnit() : nullptr, DeleteContextLine);
  if (context == nullptr ||
      !offers(providerState().dll.SccRemove, "Delete Directory", diagnostics)) {
    return 0;
  }
  const std::vector<std::string> names =
      archiveFilesBelow(directory, scc::SCC_COMMAND_REMOVE, context->getpvContextPtr());
  if (names.empty()) return 1;
  const std::string comment = argumentValue(arguments, "log");
  return succeeds(removeFiles(names, comment, context->getpvContextPtr()), nullptr) ? 1 : 0;
}

}  // namespace veldra
