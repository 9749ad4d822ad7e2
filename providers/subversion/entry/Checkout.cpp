#include <algorithm>

#include "cm/scc/interface/SccEntryPoints.h"
#include "providers/subversion/actions/Locks.h"
#include "providers/subversion/actions/Outcome.h"
#include "providers/subversion/actions/WorkingFiles.h"
#include "providers/subversion/entry/Frame.h"
#include "providers/subversion/status/FileStatus.h"
#include "providers/subversion/status/LocalStatus.h"
#include "providers/subversion/status/StoreStatus.h"

using namespace veldra;
using namespace veldra::scc;
using namespace veldra::subversion;

extern "C" {
SCC_EXPORT SccCheckoutFn SccCheckout;
}

namespace {

class CheckOut {
 public:
  CheckOut(Project& project, LPCSTR comment) : m_project(project), m_comment(comment) {}

  SCCRTN run(const FileNames& files) {
    if (files.empty()) return SCC_OK;
    lock(files);
    catchUp();
    return m_outcome.result();
  }

 private:
  void refuse(const std::string& text, SCCRTN result) {
    m_project.output.error(text);
    m_outcome.add(result);
  }

  /// One request for all; only when libsvn will not have one of the names are they looked at.
  void lock(const FileNames& files) {
    restoreMissing(files);
    try {
      takeUp(lockFiles(m_project, files, m_comment));
    } catch (const Failure& failure) {
      if (failure.result() != SCC_E_FILENOTCONTROLLED) throw;
      const FileNames known = withoutUnknown(files);
      if (!known.empty()) takeUp(lockFiles(m_project, known, m_comment));
    }
  }

  void restoreMissing(const FileNames& files) {
    const FileNames missing = missingOnes(files);
    if (missing.empty()) return;
    const FileStates states = localStates(m_project.client, missing);
    FileNames known;
    std::ranges::copy_if(missing, std::back_inserter(known),
                         [&](const std::string& file) { return stateIn(states, file).isMissing; });
    restore(m_project, known);
  }

  /// What only the store has is brought first.
  FileNames withoutUnknown(const FileNames& files) {
    FileStates states = localStates(m_project.client, files);
    FileNames away = missingOnes(files);
    std::erase_if(away, [&](const std::string& one) { return stateIn(states, one).isControlled; });
    if (!away.empty()) {
      update(m_project, away, svn_depth_infinity);
      states = localStates(m_project.client, files);
    }
    FileNames known;
    for (const std::string& file : files) {
      if (stateIn(states, file).isControlled) {
        known.push_back(file);
      } else {
        refuse("'" + lastPartOf(file) + "' is not under version control. Add it first.",
               SCC_E_FILENOTCONTROLLED);
      }
    }
    return known;
  }

  void takeUp(const Refusals& refusals) {
    for (const auto& [file, refusal] : refusals) {
      if (refusal.isOutOfDate) {
        m_behind.push_back(file);
      } else if (refusal.result == SCC_E_FILEOUTEXCLUSIVE) {
        m_held.push_back(file);
      } else {
        refuse("'" + lastPartOf(file) + "' cannot be checked out: " + refusal.text, refusal.result);
      }
    }
    tellHolders();
  }

  void tellHolders() {
    if (m_held.empty()) return;
    const FileStates states = fileStates(m_project, m_held);
    for (const std::string& file : m_held) {
      const FileState& state = stateIn(states, file);
      if (state.isHeldHere() && state.isCheckedOut()) {
        refuse("'" + lastPartOf(file) + "' is checked out here already.", SCC_E_ALREADYCHECKEDOUT);
      } else if (state.holder) {
        refuse(holderText(file, *state.holder), state.holder->owner == m_project.user
                                                    ? SCC_E_ALREADYCHECKEDOUT
                                                    : SCC_E_FILEOUTEXCLUSIVE);
      } else {
        refuse("'" + lastPartOf(file) + "' was checked out by somebody else a moment ago.",
               SCC_E_FILEOUTEXCLUSIVE);
      }
    }
    m_held.clear();
  }

  /// Files that the store has newer versions of are brought up to date and tried once more.
  void catchUp() {
    if (m_behind.empty()) return;
    const FileStates states = localStates(m_project.client, m_behind);
    FileNames clean;
    for (const std::string& file : m_behind) {
      if (stateIn(states, file).isModified) {
        refuse("'" + lastPartOf(file) +
                   "' has changes of its own, and the store has a newer version. Get that version, "
                   "or put your changes aside first.",
               SCC_E_NONSPECIFICERROR);
      } else {
        clean.push_back(file);
      }
    }
    m_behind.clear();
    if (clean.empty()) return;
    update(m_project, clean, svn_depth_empty);
    FileNames gone = missingOnes(clean);
    for (const std::string& file : gone) {
      refuse("'" + lastPartOf(file) + "' was deleted from the store.", SCC_E_FILENOTCONTROLLED);
      std::erase(clean, file);
    }
    if (!clean.empty()) takeUp(lockFiles(m_project, clean, m_comment));
    for (const std::string& file : m_behind)
      refuse("'" + lastPartOf(file) + "' keeps changing in the store.", SCC_E_ACCESSFAILURE);
  }

  Project& m_project;
  LPCSTR m_comment;
  Outcome m_outcome;
  FileNames m_behind;
  FileNames m_held;
};

}  // namespace

SCCRTN SCC_CALL SccCheckout(LPVOID context, HWND, LONG count, LPCSTR* files, LPCSTR comment,
                            LONG flags, LPCMDOPTS) {
  return withProject(context, [&](Project& project) -> SCCRTN {
    FileNames names = namesOf(count, files);
    if ((flags & SCC_GET_ALL) != 0)
      names = filesBelow(project, names, (flags & SCC_GET_RECURSIVE) != 0);
    const CancelControl control(project.output);
    const bool hasComment = comment && *comment != '\0';
    return CheckOut(project, hasComment ? comment : nullptr).run(names);
  });
}
