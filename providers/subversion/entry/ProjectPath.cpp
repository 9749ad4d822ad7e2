#include <cstdlib>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/entry/ProjectBuffers.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Repository.h"
#include "providers/subversion/session/WorkingCopy.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccGetProjPathFn SccGetProjPath;
}

namespace {

/// Names the project of the next folder that is connected.
constexpr const char* UrlVariable = "VELDRA_SUBVERSION_URL";

/// The folder of the store that the folder itself, the program's texts or the user's environment
/// mean. Empty when none of them means one.
std::string urlMeant(Client& client, const std::string& folder, LPCSTR projectName,
                     LPCSTR auxProjPath) {
  if (!folder.empty()) {
    if (std::string url = urlOfFolder(client, folder); !url.empty()) return url;
  }
  for (const char* text : {projectName, auxProjPath, LPCSTR{std::getenv(UrlVariable)}}) {
    if (!text) continue;
    if (std::string url = urlFrom(text); !url.empty()) return url;
  }
  return {};
}

/// Beside the folder, a repository that carries its name.
std::string urlForNew(const std::string& folder) {
  return folder.empty() ? folder : urlFrom(folder + "-repository/trunk");
}

/// What the program gets to know.
struct Choice {
  std::string url;
  bool isNew = false;
};

Choice choose(Context& context, Client& client, std::string url, const std::string& folder,
              bool mayBeNew) {
  if (url.empty() && mayBeNew) url = urlForNew(folder);
  // Nobody is asked here, so nobody has chosen.
  if (url.empty()) throw Failure(SCC_I_OPERATIONCANCELED, {});
  if (isFolderInStore(client, url)) return {url, false};
  // A folder on a server that is not there is more likely a slip of the pen than a wish.
  if (!mayBeNew || !isOnDisk(url)) {
    throw Failure(SCC_E_UNKNOWNPROJECT, "There is no folder " + url + ".");
  }
  createProject(client, url, nullptr);
  context.newRepository = url;
  return {url, true};
}

}  // namespace

SCCRTN SCC_CALL SccGetProjPath(LPVOID pointer, HWND, LPSTR user, LPSTR projectName, LPSTR localPath,
                               LPSTR auxProjPath, BOOL, LPBOOL isNew) {
  return withContext(pointer, [&](Context& context) -> SCCRTN {
    const TextOutput nobody;
    Client client(nobody, user ? user : "");
    const std::string folder = localPath && *localPath != '\0' ? nameOf(localPath) : "";
    const Choice choice =
        choose(context, client, urlMeant(client, folder, projectName, auxProjPath), folder,
               isNew && *isNew != 0);
    const Repository repository = repositoryOf(client, choice.url);
    copyInto(projectName, ProjectPathRoom, choice.url, "The project's URL");
    copyInto(auxProjPath, ProjectPathRoom, repository.root, "The repository's URL");
    if (isNew) *isNew = choice.isNew ? 1 : 0;
    return SCC_OK;
  });
}
