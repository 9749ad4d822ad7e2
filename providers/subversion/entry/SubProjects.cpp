#include <svn_dirent_uri.h>
#include <svn_path.h>

#include <string_view>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/entry/ProjectBuffers.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Repository.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccCreateSubProjectFn SccCreateSubProject;
SCC_EXPORT SccGetParentProjectPathFn SccGetParentProjectPath;
}

namespace {

std::string projectUrl(LPCSTR project) {
  std::string url = urlFrom(project ? project : "");
  if (url.empty()) throw Failure(SCC_E_PROJSYNTAXERR, "The project's path is no URL.");
  return url;
}

/// One part of a URL, and not one that means another folder.
bool isFolderName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos;
}

}  // namespace

SCCRTN SCC_CALL SccCreateSubProject(LPVOID pointer, HWND, LPSTR user, LPCSTR parentProject,
                                    LPCSTR name, LPSTR auxProjPath, LPSTR subProject) {
  return withContext(pointer, [&](Context&) -> SCCRTN {
    const TextOutput nobody;
    Client client(nobody, user ? user : "");
    const std::string parent = projectUrl(parentProject);
    if (!name || !isFolderName(name)) return SCC_E_PROJSYNTAXERR;
    if (!isFolderInStore(client, parent)) return SCC_E_UNKNOWNPROJECT;
    const Pool pool;
    const std::string url = svn_path_url_add_component2(parent.c_str(), name, pool);
    createProject(client, url, nullptr);
    copyInto(subProject, ProjectPathRoom, url, "The project's URL");
    copyInto(auxProjPath, ProjectPathRoom, repositoryOf(client, url).root, "The repository's URL");
    return SCC_OK;
  });
}

SCCRTN SCC_CALL SccGetParentProjectPath(LPVOID pointer, HWND, LPSTR user, LPCSTR project,
                                        LPSTR auxProjPath, LPSTR parentProject) {
  return withContext(pointer, [&](Context&) -> SCCRTN {
    const TextOutput nobody;
    Client client(nobody, user ? user : "");
    const std::string url = projectUrl(project);
    const Repository repository = repositoryOf(client, url);
    const Pool pool;
    const std::string parent = url == repository.root ? url : svn_uri_dirname(url.c_str(), pool);
    copyInto(parentProject, ProjectPathRoom, parent, "The project's URL");
    copyInto(auxProjPath, ProjectPathRoom, repository.root, "The repository's URL");
    return SCC_OK;
  });
}
