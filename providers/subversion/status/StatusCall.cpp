#include "providers/subversion/status/StatusCall.h"

#include <svn_error_codes.h>

#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {
namespace {

svn_error_t* receive(void* baton, const char* path, const svn_client_status_t* status,
                     apr_pool_t*) {
  return withoutThrowing([&] { (*static_cast<const StatusReceiver*>(baton))(path, *status); });
}

}  // namespace

void readStatus(Client& client, const std::string& path, svn_depth_t depth, StoreIsAsked store,
                const StatusReceiver& receiver) {
  const Pool pool;
  svn_error_t* const error = svn_client_status6(
      nullptr, client, path.c_str(), &HeadRevision, depth, TRUE, store == StoreIsAsked::Yes, TRUE,
      TRUE, TRUE, FALSE, nullptr, receive, const_cast<StatusReceiver*>(&receiver), pool);
  static_cast<void>(isOneOf(error, SVN_ERR_WC_NOT_WORKING_COPY, SVN_ERR_WC_PATH_NOT_FOUND));
}

}  // namespace veldra::subversion
