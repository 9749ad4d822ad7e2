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
struct Moving {
  std::string from;
  std::string to;
  bool isControlled = true;
  Names checkedOut{};  ///< By the new names.
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

bool carryOut(const Moving& moving, const std::string& comment, void* context, UnitReport& report) {
  const auto& [from, to, isControlled, checkedOut] = moving;
  if (omFileExist(to)) return refuse(MessageId::TargetExists, to, report);
  if (isControlled && !succeeds(renameInArchive(from, to, context), &report)) return false;
  if (!isMovedOnDisk(from, to)) {
    if (isControlled) renameInArchive(to, from, context);
    return refuse(MessageId::FileNotMoved, from, report);
  }
  if (!checkedOut.empty()) {
    checkIn(checkedOut, comment, context, report);
  } else if (isControlled && !comment.empty()) {
    report.endsAs(UnitEnd::Done, loadMessage(MessageId::CommentNotTaken));
  }
  return true;
}

void takeBack(const Moving& moving, void* context) {
  if (isMovedOnDisk(moving.to, moving.from) && moving.isControlled) {
    renameInArchive(moving.to, moving.from, context);
  }
}

Moving planFile(const std::string& from, const std::string& to, void* context) {
  const scc::LONG status = statusOf({from}, context).front();
  return {from, to, isControlled(status), isCheckedOut(status) ? Names{to} : Names{}};
}

Moving planDirectory(const std::string& from, const std::string& to, const Names& files,
                     void* context) {
  Moving moving{from, to};
  const std::vector<scc::LONG> status = statusOf(files, context);
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (isCheckedOut(status[i])) moving.checkedOut.push_back(rebased(files[i], from, to));
  }
  return moving;
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
  return carryOut(planFile(from, to, provider), comment, provider, report);
}

bool moveDirectory(const pvContextStruct& context, const std::string& from, const std::string& to,
                   const Names& files, const std::string& comment, UnitReport& report) {
  void* const provider = context.getpvContextPtr();
  if (isControlledDirectory(from, provider)) {
    return carryOut(planDirectory(from, to, files, provider), comment, provider, report);
  }
  std::vector<Moving> moved;
  for (const std::string& file : files) {
    moved.push_back(planFile(file, rebased(file, from, to), provider));
    if (carryOut(moved.back(), comment, provider, report)) continue;
    moved.pop_back();
    for (auto done = moved.rbegin(); done != moved.rend(); ++done) takeBack(*done, provider);
    return false;
  }
  return true;
}

}  // namespace veldra
