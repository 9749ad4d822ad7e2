#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Repository.h"
#include "providers/subversion/session/UserName.h"
#include "providers/subversion/session/WorkingCopy.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccOpenProjectFn SccOpenProject;
SCC_EXPORT SccCloseProjectFn SccCloseProject;
}

namespace {

std::string urlOfProject(Project& project, LPCSTR projectName, LPCSTR auxProjPath) {
  for (const char* text : {projectName, auxProjPath}) {
    if (text && *text != '\0') {
      std::string url = urlFrom(text);
      if (!url.empty()) return url;
      throw Failure(SCC_E_PROJSYNTAXERR, "'" + std::string(text) + "' is no URL of a repository.");
    }
  }
  return urlOfFolder(project.client, project.localPath);
}

void makeSureThatItExists(Project& project, LPCSTR comment, LONG flags) {
  if (isFolderInStore(project.client, project.url)) return;
  if ((flags & SCC_OP_CREATEIFNEW) == 0) {
    throw Failure(SCC_E_UNKNOWNPROJECT, "There is no folder " + project.url + ".");
  }
  createProject(project.client, project.url, comment);
  project.output.info("Made " + project.url + ".");
}

}  // namespace

SCCRTN SCC_CALL SccOpenProject(LPVOID pointer, HWND, LPSTR user, LPCSTR projectName,
                               LPCSTR localPath, LPSTR auxProjPath, LPCSTR comment,
                               LPTEXTOUTPROC textOut, LONG flags) {
  return withContext(pointer, [&](Context& context) -> SCCRTN {
    if (context.project) return SCC_E_PROJECTALREADYOPEN;
    const std::string givenUser = user ? user : "";
    return guarded(TextOutput(textOut), [&]() -> SCCRTN {
      auto project = std::make_unique<Project>(textOut, context.hasCancelMode, givenUser);
      project->localPath = nameOf(localPath);
      project->url = urlOfProject(*project, projectName, auxProjPath);
      if (project->url.empty()) return SCC_E_UNKNOWNPROJECT;
      makeSureThatItExists(*project, comment, flags);
      const Repository repository = repositoryOf(project->client, project->url);
      project->root = repository.root;
      attachFolder(*project);
      project->user = userNameFor(givenUser, repository.root, repository.uuid);
      if (user && project->user.size() < SCC_USER_SIZE)
        copyInto(user, SCC_USER_SIZE, project->user, "The user's name");
      if (context.newRepository == project->url) project->output.info("Made " + project->url + ".");
      context.newRepository.clear();
      context.project = std::move(project);
      return SCC_OK;
    });
  });
}

SCCRTN SCC_CALL SccCloseProject(LPVOID pointer) {
  return withContext(pointer, [](Context& context) -> SCCRTN {
    if (!context.project) return SCC_E_PROJNOTOPEN;
    context.project.reset();
    return SCC_OK;
  });
}
