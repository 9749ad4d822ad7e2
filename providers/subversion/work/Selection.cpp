#include "providers/subversion/work/Selection.h"

#include "providers/subversion/status/FileStatus.h"
#include "providers/subversion/status/LocalStatus.h"
#include "providers/subversion/work/Locks.h"
#include "providers/subversion/work/WorkingFiles.h"

namespace veldra::subversion {

using namespace scc;

void refuse(Project& project, Outcome& outcome, const std::string& file, const char* reason,
            SCCRTN result) {
  project.output.error("'" + lastPartOf(file) + "' " + reason);
  outcome.add(result);
}

void giveBack(Project& project, const FileNames& files, Outcome& outcome) {
  for (const auto& [file, refusal] : unlockFiles(project, files)) {
    const std::string reason = "keeps its lock: " + refusal.text;
    refuse(project, outcome, file, reason.c_str(), refusal.result);
  }
}

FileNames heldOnes(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = localStates(project.client, files);
  FileNames held;
  for (const std::string& file : files) {
    const FileState& state = stateIn(states, file);
    if (!state.isControlled) {
      refuse(project, outcome, file, "is not under version control.", SCC_E_FILENOTCONTROLLED);
    } else if (!state.isHeldHere()) {
      refuse(project, outcome, file, "is not checked out.", SCC_E_NOTCHECKEDOUT);
    } else {
      held.push_back(file);
    }
  }
  return held;
}

FileNames uncontrolledOnes(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = localStates(project.client, files);
  FileNames fresh;
  for (const std::string& file : files) {
    if (stateIn(states, file).isControlled) {
      refuse(project, outcome, file, "is under version control already.", SCC_E_FILEALREADYEXISTS);
    } else {
      fresh.push_back(file);
    }
  }
  return fresh;
}

FileNames controlledOnes(Project& project, const FileNames& files, Outcome& outcome) {
  const FileStates states = localStates(project.client, files);
  FileNames known;
  for (const std::string& file : files) {
    if (stateIn(states, file).isControlled) {
      known.push_back(file);
    } else {
      refuse(project, outcome, file, "is not under version control.", SCC_E_FILENOTCONTROLLED);
    }
  }
  return known;
}

FileNames presentOnes(Project& project, const FileNames& files, Outcome& outcome) {
  Pool pool;
  FileNames present;
  for (const std::string& file : files) {
    pool.clear();
    if (isOnDisk(file, pool)) {
      present.push_back(file);
    } else {
      refuse(project, outcome, file, "does not exist.", SCC_E_FILENOTEXIST);
    }
  }
  return present;
}

}  // namespace veldra::subversion
