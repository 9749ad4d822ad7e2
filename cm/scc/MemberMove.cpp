#include "cm/scc/MemberMove.h"

#include <string_view>

#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

using Names = std::vector<std::string>;

/// What goes under one name: a file, or a directory with all that is in it.
struct Step {
  std::string from;
  std::string to;
  bool isControlled = true;
};

struct Plan {
  std::vector<Step> steps;  ///< All of them, or none.
  Names checkedOut{};       ///< By the names in the end.
};

/// The status of files; what a provider cannot tell counts as controlled and not checked out.
std::vector<scc::LONG> statusOf(const Names& files, void* context) {
  std::vector<scc::LONG> status(files.size(), scc::SCC_STATUS_INVALID);
  if (files.empty()) return status;
  const bool isKnown = SccQuery::query(files, status.data(), context) == 0;
  for (scc::LONG& word : status) {
    if (!isKnown || word == scc::SCC_STATUS_INVALID) word = scc::SCC_STATUS_CONTROLLED;
  }
  return status;
}

bool isControlled(scc::LONG status) {
  return (status & scc::SCC_STATUS_CONTROLLED) != 0;
}

bool isCheckedOut(scc::LONG status) {
  return isControlled(status) && (status & scc::SCC_STATUS_CHECKEDOUT) != 0;
}

/// Whether the archive knows the directory, and the provider takes its name as it takes a file's.
bool isControlledDirectory(const std::string& directory, void* context) {
  ProviderState& state = providerState();
  const bool isAnswered = (state.capabilities & scc::SCC_CAP_DIRECTORYSTATUS) != 0 &&
                          state.dll.has(state.dll.SccDirQueryInfo);
  if (!isAnswered) return false;
  FileNames names(directory);
  scc::LONG status = scc::SCC_DIRSTATUS_INVALID;
  const TracedCall traced("SccDirQueryInfo", names, names.count(), CallLines::PreAndReturn);
  const long code = traced.returned(
      state.dll.call(state.dll.SccDirQueryInfo, context, names.count(), names.data(), &status));
  return code == 0 &&
         (status == scc::SCC_DIRSTATUS_CONTROLLED || status == scc::SCC_DIRSTATUS_EMPTYPROJ);
}

long renameInArchive(const std::string& from, const std::string& to, void* context) {
  SCCdll& dll = providerState().dll;
  const TracedCall traced("SccRename", from, CallLines::PrePostAndReturn);
  return traced.returned(
      dll.call(dll.SccRename, context, parentWindow(), from.c_str(), to.c_str()));
}

/// The move stands whatever becomes of this; files that stay checked out are told of.
void checkIn(const Names& names, const std::string& comment, void* context, UnitReport& report) {
  FileNames files(names);
  const long code =
      callOnFiles(providerState().dll.SccCheckin, CallLines::PreAndReturn, context, parentWindow(),
                  files, comment.c_str(), scc::LONG{0}, CMProperty::getPvOptions());
  if (!succeeds(code, nullptr)) report.endsAs(UnitEnd::Done, SCCTextOutProc::messageOf(code).text);
}

/// Some providers move what is on the disk themselves.
bool isMovedOnDisk(const std::string& from, const std::string& to) {
  return !omFileExist(from) || installedHost()->environment().moveFile(from, to);
}

bool carryOut(const Step& step, void* context, UnitReport& report) {
  if (omFileExist(step.to)) return refuse(MessageId::TargetExists, step.to, report);
  if (step.isControlled && !succeeds(renameInArchive(step.from, step.to, context), &report)) {
    return false;
  }
  if (isMovedOnDisk(step.from, step.to)) return true;
  if (step.isControlled) renameInArchive(step.to, step.from, context);
  return refuse(MessageId::FileNotMoved, step.from, report);
}

void takeBack(const Step& step, void* context) {
  if (isMovedOnDisk(step.to, step.from) && step.isControlled) {
    renameInArchive(step.to, step.from, context);
  }
}

bool carryOut(const Plan& plan, const std::string& comment, void* context, UnitReport& report) {
  bool isInArchive = false;
  for (auto step = plan.steps.begin(); step != plan.steps.end(); ++step) {
    isInArchive = isInArchive || step->isControlled;
    if (carryOut(*step, context, report)) continue;
    while (step != plan.steps.begin()) takeBack(*--step, context);
    return false;
  }
  if (!plan.checkedOut.empty()) {
    checkIn(plan.checkedOut, comment, context, report);
  } else if (isInArchive && !comment.empty()) {
    report.endsAs(UnitEnd::Done, loadMessage(MessageId::CommentNotTaken));
  }
  return true;
}

std::string newNameOf(const std::string& file, const DirectoryMove& move) {
  return file == move.renamed ? move.newName : rebased(file, move.from, move.to);
}

Plan planDirectory(const DirectoryMove& move, void* context) {
  Plan plan;
  const bool isWhole = isControlledDirectory(move.from, context);
  if (isWhole) plan.steps.push_back({move.from, move.to});
  const std::vector<scc::LONG> status = statusOf(move.files, context);
  for (std::size_t i = 0; i < move.files.size(); ++i) {
    const std::string& file = move.files[i];
    const std::string newName = newNameOf(file, move);
    if (isCheckedOut(status[i])) plan.checkedOut.push_back(newName);
    const std::string from = isWhole ? rebased(file, move.from, move.to) : file;
    if (from != newName) plan.steps.push_back({from, newName, isControlled(status[i])});
  }
  return plan;
}

}  // namespace

std::string rebased(const std::string& file, const std::string& from, const std::string& to) {
  const std::string prefix = from + omPathSeparator();
  return joinPath(
      to, file.starts_with(prefix) ? std::string_view(file).substr(prefix.size()) : baseName(file));
}

bool moveMember(const pvContextStruct& context, const std::string& from, const std::string& to,
                const std::string& comment, UnitReport& report) {
  if (from == to) return true;
  void* const provider = context.getpvContextPtr();
  const scc::LONG status = statusOf({from}, provider).front();
  Plan plan{.steps = {{from, to, isControlled(status)}}};
  if (isCheckedOut(status)) plan.checkedOut = {to};
  return carryOut(plan, comment, provider, report);
}

bool moveDirectory(const pvContextStruct& context, const DirectoryMove& move,
                   const std::string& comment, UnitReport& report) {
  void* const provider = context.getpvContextPtr();
  return carryOut(planDirectory(move, provider), comment, provider, report);
}

}  // namespace veldra
