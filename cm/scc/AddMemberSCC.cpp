#include "cm/scc/AddMemberSCC.h"

#include <array>
#include <fstream>
#include <string_view>

#include "cm/core/TextTools.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/ProviderBatch.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char AddName[] = "Add to Archive";
constexpr char AddContextLine[] = "Getting SCC Context to perform add";

/// As the archive tools themselves do it: a file with a NUL byte near its start is no text.
scc::LONG fileTypeOf(const std::string& fileName) {
  std::array<char, 8192> head{};
  std::ifstream file(fileName, std::ios::binary);
  file.read(head.data(), head.size());
  const std::string_view read(head.data(), static_cast<std::size_t>(file.gcount()));
  const bool isText = !read.empty() && read.find('\0') == std::string_view::npos;
  return isText ? scc::SCC_FILETYPE_TEXT : scc::SCC_FILETYPE_AUTO;
}

long addFiles(const std::vector<std::string>& names, const std::string& comment, void* context) {
  std::vector<scc::LONG> types;
  types.reserve(names.size());
  for (const std::string& name : names) types.push_back(fileTypeOf(name));
  FileNames files(names);
  return callOnFiles(providerState().dll.SccAdd, CallLines::PrePostAndReturn, context,
                     parentWindow(), files, comment.c_str(), types.data(),
                     CMProperty::getPvOptions());
}

/// The archive has these already.
void leaveOutControlled(ProviderBatch& batch) {
  const std::vector<std::int32_t> status = batch.status();
  batch.leaveOut([&](std::size_t i, UnitReport& report) {
    const bool isControlled =
        status[i] != scc::SCC_STATUS_INVALID && (status[i] & scc::SCC_STATUS_CONTROLLED) != 0;
    if (isControlled) markFailed(scc::SCC_E_FILEALREADYEXISTS, report);
    return isControlled;
  });
}

/// How many files were added.
std::size_t addBatch(ProviderBatch& batch, const std::string& comment) {
  leaveOutControlled(batch);
  if (batch.empty()) return 0;
  const long code = addFiles(batch.names(), comment, batch.context());
  const bool isDone = batch.conclude(code, scc::SCC_STATUS_CONTROLLED, true);
  for (IUnit* unit : batch.units()) {
    updateUnit(*unit,
               {.headerLine = UnitUpdate::Header,
                .modeLine = UnitUpdate::Mode,
                .statusLine = UnitUpdate::Status},
               &batch.record());
  }
  return isDone ? batch.units().size() : 0;
}

}  // namespace

int AddMemberSCC::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                             bool /*hybrid*/) {
  if (units.empty()) return 1;
  saveModel(SaveRule::Always, false);
  std::vector<ProviderBatch> batches = batchesOf(units, AddName, AddContextLine);
  if (batches.empty() || !offers(providerState().dll.SccAdd, AddName, diagnostics)) return 0;
  const std::string comment = argumentValue(arguments, "log");
  std::size_t position = 0;
  std::size_t added = 0;
  for (ProviderBatch& batch : batches) {
    batch.begin(position, units.size());
    added += addBatch(batch, comment);
  }
  if (added > 0 && !equalsNoCase(argumentValue(arguments, "shouldSuppressSCCOKMessage"), "Yes")) {
    notifyUserAndAsk(formatMessage(MessageId::AddedToArchive, {std::to_string(added)}),
                     MessageBox::IconInformation);
  }
  return added == position ? 1 : 0;
}

int AddMemberSCC::AddDirectory(const std::string& directory, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  UnitList inside = UnitsByFile().below(directory);
  if (!inside.empty()) return AddMemberSCC()(inside, arguments, diagnostics, false);
  const pvContextStruct* const context = contextFor(nullptr, AddContextLine);
  if (context == nullptr || !offers(providerState().dll.SccAdd, "Add Directory", diagnostics)) {
    return 0;
  }
  const std::string comment = argumentValue(arguments, "log");
  return succeeds(addFiles({directory}, comment, context->getpvContextPtr()), nullptr) ? 1 : 0;
}

}  // namespace veldra
