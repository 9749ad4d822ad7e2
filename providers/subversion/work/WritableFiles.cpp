#include "providers/subversion/work/WritableFiles.h"

#include <apr_file_info.h>
#include <svn_dirent_uri.h>
#include <svn_props.h>

#include <algorithm>

#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {
namespace {

/// By the mode alone: for an administrator every file can be written.
bool isWritable(const std::string& file, apr_pool_t* pool) {
  apr_finfo_t facts{};
  return apr_stat(&facts, file.c_str(), APR_FINFO_PROT, pool) == APR_SUCCESS &&
         (facts.protection & APR_FPROT_UWRITE) != 0;
}

}  // namespace

FileNames wronglyWritable(Project& project, const FileNames& files) {
  Pool pool;
  FileNames writable;
  std::ranges::copy_if(files, std::back_inserter(writable), [&pool](const std::string& file) {
    pool.clear();
    return isWritable(file, pool);
  });
  if (writable.empty()) return writable;

  const char* common = svn_dirent_dirname(writable.front().c_str(), pool);
  for (const std::string& file : writable)
    common = svn_dirent_get_longest_ancestor(common, file.c_str(), pool);
  apr_hash_t* wanting = nullptr;
  check(svn_client_propget5(&wanting, nullptr, SVN_PROP_NEEDS_LOCK, common, &WorkingRevision,
                            &WorkingRevision, nullptr, svn_depth_infinity, nullptr, project.client,
                            pool, pool));
  std::erase_if(writable, [&](const std::string& file) {
    return !apr_hash_get(wanting, file.data(), static_cast<apr_ssize_t>(file.size()));
  });
  return writable;
}

}  // namespace veldra::subversion
