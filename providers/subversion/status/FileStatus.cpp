#include "providers/subversion/status/FileStatus.h"

#include <svn_dirent_uri.h>
#include <svn_time.h>

#include <algorithm>

#include "providers/subversion/actions/WorkingFiles.h"
#include "providers/subversion/status/LocalStatus.h"
#include "providers/subversion/status/StatusCall.h"
#include "providers/subversion/status/StoreStatus.h"

namespace veldra::subversion {
namespace {

std::string commonDirectory(const FileNames& files) {
  const Pool pool;
  const char* common = svn_dirent_dirname(files.front().c_str(), pool);
  for (const std::string& file : files)
    common = svn_dirent_get_longest_ancestor(common, file.c_str(), pool);
  return common;
}

/// Files that are neither known here nor on the disk.
FileNames unknownOnes(const FileNames& files, const FileStates& states) {
  FileNames unknown;
  std::ranges::copy_if(files, std::back_inserter(unknown), [&states](const std::string& file) {
    return !stateIn(states, file).isControlled;
  });
  return missingOnes(unknown);
}

/// What only the store has, if any of the files is; that takes a look at whole folders.
void addOnlyThere(Project& project, const FileNames& files, FileStates& states) {
  const FileNames unknown = unknownOnes(files, states);
  if (unknown.empty()) return;
  const Pool pool;
  std::string folder = commonDirectory(unknown);
  // The working copy may lack the folder as well.
  while (folder.size() > project.localPath.size() && !isOnDisk(folder, pool)) {
    folder = svn_dirent_dirname(folder.c_str(), pool);
  }
  const FileStates there = treeStates(project, folder, svn_depth_infinity);
  for (const std::string& file : unknown) {
    const FileState& state = stateIn(there, file);
    if (state.isOnlyThere) states.insert_or_assign(file, state);
  }
}

}  // namespace

FileStates fileStates(Project& project, const FileNames& files) {
  if (files.empty()) return {};
  FileStates states = localStates(project.client, files);
  if (!askStore(project.client, states)) {
    return treeStates(project, commonDirectory(files), svn_depth_infinity);
  }
  addOnlyThere(project, files, states);
  return states;
}

FileStates treeStates(Project& project, const std::string& directory, svn_depth_t depth) {
  FileStates states;
  readStatus(project.client, directory, depth, StoreIsAsked::Yes,
             [&states](const char* path, const svn_client_status_t& status) {
               states.insert_or_assign(path, stateOf(status));
             });
  return states;
}

const FileState& stateIn(const FileStates& states, const std::string& file) {
  static const FileState unknown;
  const auto found = states.find(file);
  return found == states.end() ? unknown : found->second;
}

std::string holderText(const std::string& file, const Holder& holder) {
  const Pool pool;
  std::string text = "'" + lastPartOf(file) + "' is checked out by " + holder.owner;
  if (holder.since != 0)
    text += " since " + std::string(svn_time_to_human_cstring(holder.since, pool));
  if (!holder.comment.empty()) text += ": " + holder.comment;
  return text;
}

}  // namespace veldra::subversion
