#include "providers/subversion/actions/Comparison.h"

#include <svn_io.h>

#include "cm/scc/interface/SccCommands.h"
#include "providers/subversion/actions/StoredVersion.h"
#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {

using namespace scc;

bool hasOtherBytes(Project& project, const std::string& file) {
  const Pool pool;
  svn_stringbuf_t* const stored = svn_stringbuf_create_empty(pool);
  readStoredVersion(project, file, svn_stream_from_stringbuf(stored, pool));
  svn_stringbuf_t* present = nullptr;
  check(svn_stringbuf_from_file2(&present, file.c_str(), pool));
  return !svn_stringbuf_compare(stored, present);
}

bool showDifference(Project& project, const std::string& file, LONG flags) {
  const Pool pool;
  FileNames options;
  if ((flags & SCC_DIFF_IGNORESPACE) != 0) options.emplace_back("-w");
  svn_stringbuf_t* const text = svn_stringbuf_create_empty(pool);
  check(svn_client_diff7(arrayOf(options, pool), file.c_str(), &HeadRevision, file.c_str(),
                         &WorkingRevision, nullptr, svn_depth_infinity, TRUE, FALSE, FALSE, FALSE,
                         FALSE, TRUE, FALSE, FALSE, FALSE, "UTF-8",
                         svn_stream_from_stringbuf(text, pool), svn_stream_empty(pool), nullptr,
                         project.client, pool));
  project.output.info(std::string(text->data, text->len));
  return text->len != 0;
}

}  // namespace veldra::subversion
