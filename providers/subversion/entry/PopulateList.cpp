#include <algorithm>
#include <map>
#include <set>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccPopulateListFn SccPopulateList;
}

namespace {

/// What a command needs of a file, and what it must not find, in bits of the status word.
struct Fitness {
  SCCCOMMAND command;
  LONG needed;
  LONG forbidden;
};

constexpr LONG Controlled = SCC_STATUS_CONTROLLED;
constexpr LONG Anything = 0;

constexpr Fitness FitnessTable[] = {
    // Programs list an archive in this way, so files that are checked out are not left out.
    {SCC_COMMAND_GET, Controlled, SCC_STATUS_DELETED},
    {SCC_COMMAND_CHECKOUT, Controlled,
     SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTEXCLUSIVE | SCC_STATUS_DELETED},
    {SCC_COMMAND_CHECKIN, SCC_STATUS_CHECKEDOUT, SCC_STATUS_DELETED},
    {SCC_COMMAND_UNCHECKOUT, SCC_STATUS_CHECKEDOUT, 0},
    {SCC_COMMAND_ADD, Anything, Controlled},
    {SCC_COMMAND_REMOVE, Controlled, SCC_STATUS_OUTOTHER | SCC_STATUS_DELETED},
    {SCC_COMMAND_RENAME, Controlled, SCC_STATUS_OUTOTHER | SCC_STATUS_DELETED},
    {SCC_COMMAND_DIFF, Controlled, 0},
    {SCC_COMMAND_HISTORY, Controlled, 0},
    {SCC_COMMAND_PROPERTIES, Controlled, 0},
    {SCC_COMMAND_OPTIONS, Anything, 0},
};

bool fits(SCCCOMMAND command, LONG status) {
  const auto* row = std::ranges::find(FitnessTable, command, &Fitness::command);
  if (row == std::end(FitnessTable)) return true;
  return (status & row->needed) == row->needed && (status & row->forbidden) == 0;
}

class List {
 public:
  List(POPLISTFUNC populate, LPVOID callerData) : m_populate(populate), m_callerData(callerData) {}

  /// Throws when the program wants to hear no more.
  void tell(bool isKept, LONG status, std::string file) const {
    if (!m_populate || m_populate(m_callerData, isKept ? 1 : 0, status, file.data()) != 0) return;
    throw Failure(SCC_E_NONSPECIFICERROR, {});
  }

 private:
  POPLISTFUNC m_populate;
  LPVOID m_callerData;
};

void listStore(Project& project, SCCCOMMAND command, const FileNames& directories,
               const std::set<std::string>& listed, const List& list) {
  for (const std::string& directory : directories) {
    const FileStates states = treeStates(project, directory, svn_depth_infinity);
    for (const auto& [path, state] : std::map(states.begin(), states.end())) {
      if (state.isDirectory || listed.contains(path)) continue;
      const LONG status = statusWordOf(state, project.user);
      if ((status & Controlled) != 0 && fits(command, status)) list.tell(true, status, path);
    }
  }
}

void listFiles(Project& project, SCCCOMMAND command, const FileNames& files, const List& list,
               LPLONG status) {
  const FileStates states = fileStates(project, files);
  for (std::size_t i = 0; i < files.size(); ++i) {
    const LONG word = statusWordOf(stateIn(states, files[i]), project.user);
    if (status) status[i] = word;
    list.tell(fits(command, word), word, files[i]);
  }
}

}  // namespace

SCCRTN SCC_CALL SccPopulateList(LPVOID context, SCCCOMMAND command, LONG count, LPCSTR* files,
                                POPLISTFUNC populate, LPVOID callerData, LPLONG status,
                                LONG flags) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    const FileNames names = namesOf(count, files);
    const List list(populate, callerData);
    if ((flags & SCC_PL_DIR) != 0) {
      const FileStates states = fileStates(project, names);
      for (std::size_t i = 0; status && i < names.size(); ++i)
        status[i] = statusWordOf(stateIn(states, names[i]), project.user);
      listStore(project, command, names, {}, list);
      return SCC_OK;
    }
    listFiles(project, command, names, list, status);
    listStore(project, command, {project.localPath}, {names.begin(), names.end()}, list);
    return SCC_OK;
  });
}
