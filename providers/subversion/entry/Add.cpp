#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/work/Addition.h"
#include "providers/subversion/work/Locks.h"
#include "providers/subversion/work/Selection.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccAddFn SccAdd;
}

SCCRTN SCC_CALL SccAdd(LPVOID context, HWND, LONG count, LPCSTR* files, LPCSTR comment,
                       LPLONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    Outcome outcome;
    const FileNames names = namesOf(count, files);
    std::map<std::string, LONG> flagsOf;
    for (std::size_t i = 0; i < names.size(); ++i)
      flagsOf.emplace(names[i], flags ? flags[i] : LONG{SCC_FILETYPE_AUTO});
    const FileNames fresh =
        uncontrolledOnes(project, presentOnes(project, names, outcome), outcome);
    if (fresh.empty()) return outcome.result();

    const CancelControl control(project.output);
    Addition addition(project);
    for (const std::string& file : fresh) addition.schedule(file, flagsOf[file]);
    const svn_revnum_t revision = addition.commit(comment);
    project.output.info("Added in revision " + std::to_string(revision) + ".");

    FileNames kept;
    for (const std::string& file : fresh) {
      if ((flagsOf[file] & SCC_KEEP_CHECKEDOUT) != 0) kept.push_back(file);
    }
    if (kept.empty()) return outcome.result();
    for (const auto& [file, refusal] : lockFiles(project, kept, nullptr))
      refuse(project, outcome, file, refusal.text.c_str(), refusal.result);
    return outcome.result();
  });
}
