#include "providers/subversion/session/WorkingCopy.h"

#include <svn_error_codes.h>
#include <svn_io.h>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/session/Repository.h"

namespace veldra::subversion {

using namespace scc;

std::string urlOfFolder(Client& client, const std::string& path) {
  const Pool pool;
  const char* url = nullptr;
  svn_error_t* const error = svn_client_url_from_path2(&url, path.c_str(), client, pool, pool);
  if (isOneOf(error, SVN_ERR_WC_NOT_WORKING_COPY, SVN_ERR_WC_PATH_NOT_FOUND)) return {};
  return url ? url : "";
}

namespace {

void checkOutInto(Project& project) {
  const Pool pool;
  check(svn_io_make_dir_recursively(project.localPath.c_str(), pool));
  const CancelControl control(project.output);
  check(svn_client_checkout3(nullptr, project.url.c_str(), project.localPath.c_str(), &NoRevision,
                             &HeadRevision, svn_depth_infinity, FALSE, TRUE, project.client, pool));
}

}  // namespace

void attachFolder(Project& project) {
  const std::string present = urlOfFolder(project.client, project.localPath);
  if (present.empty()) return checkOutInto(project);
  if (present == project.url) return;
  const std::string explanation =
      "'" + project.localPath + "' is a working copy of " + present + ", not of " + project.url;
  if (repositoryOf(project.client, present).uuid !=
      repositoryOf(project.client, project.url).uuid) {
    throw Failure(SCC_E_INVALIDFILEPATH,
                  explanation + ". Choose another folder, or remove its '.svn' folder.");
  }
  project.output.warning(explanation + "; it is used as it is.");
  project.url = present;
}

}  // namespace veldra::subversion
