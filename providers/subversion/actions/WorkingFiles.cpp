#include "providers/subversion/actions/WorkingFiles.h"

#include <svn_io.h>

#include <algorithm>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/status/FileState.h"
#include "providers/subversion/status/StatusCall.h"

namespace veldra::subversion {

bool isOnDisk(const std::string& file, apr_pool_t* pool) {
  svn_node_kind_t kind = svn_node_none;
  check(svn_io_check_path(file.c_str(), &kind, pool));
  return kind != svn_node_none;
}

FileNames missingOnes(const FileNames& files) {
  Pool pool;
  FileNames missing;
  std::ranges::copy_if(files, std::back_inserter(missing), [&pool](const std::string& file) {
    pool.clear();
    return !isOnDisk(file, pool);
  });
  return missing;
}

namespace {

void revert(Project& project, const FileNames& files, svn_boolean_t onlySchedules) {
  if (files.empty()) return;
  const Pool pool;
  check(svn_client_revert4(arrayOf(files, pool), svn_depth_empty, nullptr, FALSE, onlySchedules,
                           TRUE, project.client, pool));
}

}  // namespace

void restore(Project& project, const FileNames& files) {
  revert(project, files, FALSE);
}

void dropSchedules(Project& project, const FileNames& files) {
  revert(project, files, TRUE);
}

void update(Project& project, const FileNames& files, svn_depth_t depth) {
  if (files.empty()) return;
  const Pool pool;
  check(svn_client_update4(nullptr, arrayOf(files, pool), &HeadRevision, depth, FALSE, TRUE, TRUE,
                           FALSE, TRUE, project.client, pool));
}

bool isSetAside(const std::string& file) {
  const Pool pool;
  return isOnDisk(file + "_temp", pool);
}

void exportNewest(Project& project, const std::string& file) {
  const Pool pool;
  check(svn_client_export5(nullptr, file.c_str(), file.c_str(), &NoRevision, &HeadRevision, FALSE,
                           TRUE, FALSE, svn_depth_empty, nullptr, project.client, pool));
}

FileNames filesBelow(Project& project, const FileNames& directories, bool isRecursive) {
  FileNames files;
  for (const std::string& directory : directories) {
    readStatus(project.client, directory, isRecursive ? svn_depth_infinity : svn_depth_files,
               StoreIsAsked::No,
               [&files](const std::string& path, const svn_client_status_t& status) {
                 const FileState state = stateOf(status);
                 if (state.isControlled && !state.isDirectory) files.push_back(path);
               });
  }
  return files;
}

}  // namespace veldra::subversion
