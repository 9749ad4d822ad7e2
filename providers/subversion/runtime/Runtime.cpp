#include "providers/subversion/runtime/Runtime.h"

#include <apr_general.h>
#include <svn_dso.h>
#include <svn_error.h>
#include <svn_fs.h>
#include <svn_ra.h>
#include <svn_utf.h>

#include <mutex>

#include "providers/subversion/runtime/Pool.h"

namespace veldra::subversion {
namespace {

bool prepare() {
  if (apr_initialize() != APR_SUCCESS) return false;
  // Lives as long as the process: libsvn keeps its caches and mutexes in it.
  static apr_pool_t* const forever = svn_pool_create(nullptr);
  // A failed assertion of libsvn becomes an error; as it comes it would end the program.
  svn_error_set_malfunction_handler(svn_error_raise_on_malfunction);
  // Names pass as they are. The program's locale may be "C", which knows no UTF-8.
  svn_utf_initialize2(TRUE, forever);
  svn_error_t* error = svn_dso_initialize2();
  if (!error) error = svn_fs_initialize(forever);
  if (!error) error = svn_ra_initialize(forever);
  svn_error_clear(error);
  return error == nullptr;
}

}  // namespace

bool prepareRuntime() {
  static std::once_flag once;
  static bool isReady = false;
  std::call_once(once, [] { isReady = prepare(); });
  return isReady;
}

}  // namespace veldra::subversion
