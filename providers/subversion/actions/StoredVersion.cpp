#include "providers/subversion/actions/StoredVersion.h"

#include <svn_dirent_uri.h>
#include <svn_path.h>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/status/FileStatus.h"
#include "providers/subversion/status/LocalStatus.h"

namespace veldra::subversion {
namespace {

/// The file itself, or its place in the store when the working copy does not know it.
std::string nameInStore(Project& project, const std::string& file) {
  if (stateIn(localStates(project.client, {file}), file).isControlled) return file;
  const Pool pool;
  const char* const below = svn_dirent_skip_ancestor(project.localPath.c_str(), file.c_str());
  if (!below) {
    throw Failure(scc::SCC_E_FILENOTCONTROLLED,
                  "'" + lastPartOf(file) + "' is not under version control.");
  }
  return svn_path_url_add_component2(project.url.c_str(), below, pool);
}

}  // namespace

void readStoredVersion(Project& project, const std::string& file, svn_stream_t* stream) {
  const Pool pool;
  check(svn_client_cat3(nullptr, stream, nameInStore(project, file).c_str(), &NoRevision,
                        &HeadRevision, TRUE, project.client, pool, pool));
}

void writeStoredVersion(Project& project, const std::string& file, const std::string& target) {
  const Pool pool;
  svn_stream_t* stream = nullptr;
  const char* written = nullptr;
  // What is not renamed in the end goes with the pool.
  check(svn_stream_open_unique(&stream, &written, directoryOf(target).c_str(),
                               svn_io_file_del_on_pool_cleanup, pool, pool));
  readStoredVersion(project, file, stream);
  check(svn_stream_close(stream));
  check(svn_io_file_rename2(written, target.c_str(), FALSE, pool));
}

}  // namespace veldra::subversion
