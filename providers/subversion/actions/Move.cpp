#include "providers/subversion/actions/Move.h"

#include <svn_dirent_uri.h>
#include <svn_io.h>

#include <algorithm>
#include <utility>

#include "providers/subversion/actions/Locks.h"
#include "providers/subversion/actions/WorkingFiles.h"
#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/status/FileStatus.h"
#include "providers/subversion/status/LocalStatus.h"
#include "providers/subversion/status/StatusCall.h"

namespace veldra::subversion {

using namespace scc;

namespace {

void renameOnDisk(const std::string& from, const std::string& to) {
  const Pool pool;
  check(svn_io_file_rename2(from.c_str(), to.c_str(), FALSE, pool));
}

bool exists(const std::string& name) {
  return isOnDisk(name, Pool());
}

std::string freeNameBeside(const std::string& file) {
  const Pool pool;
  const char* name = nullptr;
  check(svn_io_open_unique_file3(nullptr, &name, directoryOf(file).c_str(), svn_io_file_del_none,
                                 pool, pool));
  return name;
}

Failure holdsChanges(const std::string& name) {
  return {SCC_E_OPNOTPERFORMED,
          "'" + lastPartOf(name) + "' holds changes. Check them in or undo them first."};
}

/// The files below a directory that are checked out here. Throws where anything else has changed:
/// the commit of a directory would take it along.
FileNames heldBelow(Project& project, const std::string& directory) {
  FileNames held;
  bool hasMore = false;
  readStatus(project.client, directory, svn_depth_infinity, StoreIsAsked::No,
             [&](const std::string& path, const svn_client_status_t& status) {
               const FileState state = stateOf(status);
               if (state.isHeldHere()) held.push_back(path);
               hasMore = hasMore || state.isScheduled || state.isDeleted ||
                         (state.isModified && !state.isHeldHere());
             });
  if (hasMore) throw holdsChanges(directory);
  return held;
}

}  // namespace

Move::Move(Project& project, std::string from, std::string to)
    : m_project(project), m_from(std::move(from)), m_to(std::move(to)) {}

Move::~Move() {
  try {
    if (m_isScheduled) dropSchedule();
    leaveDiskAsItWas();
  } catch (const std::exception& problem) {
    m_project.output.warning("The rename could not be undone: " + std::string(problem.what()));
  }
}

void Move::dropSchedule() {
  if (exists(m_to)) renameOnDisk(m_to, m_from);
  for (const std::string& half : {m_to, m_from}) {
    const Pool pool;
    check(svn_client_revert4(arrayOf({half}, pool), svn_depth_infinity, nullptr, FALSE, TRUE, TRUE,
                             m_project.client, pool));
  }
  // What is below comes before what is above.
  std::ranges::reverse(m_newDirectories);
  dropSchedules(m_project, m_newDirectories);
}

void Move::prepare() {
  const FileStates states = localStates(m_project.client, {m_from, m_to});
  const FileState& old = stateIn(states, m_from);
  const auto refuseWhen = [this](bool isSo, const std::string& name, const char* reason,
                                 SCCRTN result = SCC_E_OPNOTPERFORMED) {
    if (isSo) throw Failure(result, "'" + lastPartOf(name) + "' " + reason);
  };
  refuseWhen(!old.isControlled, m_from, "is not under version control.", SCC_E_FILENOTCONTROLLED);
  refuseWhen(stateIn(states, m_to).isControlled, m_to, "is under version control already.");
  refuseWhen(exists(m_to) && exists(m_from), m_to, "exists already.");
  m_wasRenamed = exists(m_to);
  if (m_wasRenamed) renameOnDisk(m_to, m_from);
  if (old.isHeldHere()) m_held = {m_from};
  if (old.isDirectory) return prepareDirectory();
  if (stateIn(localStates(m_project.client, {m_from}), m_from).isModified) putAside({m_from});
}

void Move::prepareDirectory() {
  m_held = heldBelow(m_project, m_from);
  const FileStates states = fileStates(m_project, m_held);
  FileNames changed;
  for (const std::string& file : m_held) {
    const FileState& state = stateIn(states, file);
    if (!state.isModified) continue;
    // Without the lock there may be a newer version, which these changes know nothing of.
    if (!state.isCheckedOut()) throw holdsChanges(m_from);
    changed.push_back(file);
  }
  putAside(changed);
  // The store moves a directory only for somebody who has seen all that is in it.
  update(m_project, {m_from}, svn_depth_infinity);
}

void Move::putAside(const FileNames& files) {
  for (const std::string& file : files) {
    const std::string aside = freeNameBeside(m_from);
    renameOnDisk(file, aside);
    m_aside.emplace_back(file, aside);
  }
  restore(m_project, files);
}

void Move::putBack() {
  for (const auto& [file, aside] : std::exchange(m_aside, {})) renameOnDisk(aside, file);
}

void Move::holdAgain() {
  if (m_held.empty()) return;
  FileNames files;
  for (const std::string& file : m_held) files.push_back(m_to + file.substr(m_from.size()));
  for (const auto& [file, refusal] : lockFiles(m_project, files, nullptr)) {
    m_project.output.warning(refusal.text);
  }
}

void Move::leaveDiskAsItWas() {
  putBack();
  if (std::exchange(m_wasRenamed, false) && exists(m_from)) renameOnDisk(m_from, m_to);
}

svn_revnum_t Move::commit() {
  prepare();
  const Pool pool;
  {
    const Listening listening(m_project.client, [this](const svn_wc_notify_t& notification) {
      if (notification.action == svn_wc_notify_add && notification.kind == svn_node_dir &&
          m_to != notification.path)
        m_newDirectories.push_back(notification.path);
    });
    m_isScheduled = true;
    check(svn_client_move7(arrayOf({m_from}, pool), m_to.c_str(), FALSE, TRUE, TRUE, FALSE, nullptr,
                           nullptr, nullptr, m_project.client, pool));
  }
  FileNames paths = m_newDirectories;
  paths.push_back(m_from);
  paths.push_back(m_to);
  const std::string comment = "Rename " + lastPartOf(m_from) + " to " + lastPartOf(m_to) + ".";
  const svn_revnum_t revision =
      m_project.client.commit(paths, svn_depth_infinity, false, comment.c_str());
  m_isScheduled = false;
  holdAgain();
  renameOnDisk(m_to, m_from);
  return revision;
}

}  // namespace veldra::subversion
