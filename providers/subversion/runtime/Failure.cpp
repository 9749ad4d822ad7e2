#include "providers/subversion/runtime/Failure.h"

#include <svn_error_codes.h>

#include <array>
#include <utility>

namespace veldra::subversion {

using namespace scc;

Failure::Failure(SCCRTN result, std::string text) : m_result(result), m_text(std::move(text)) {}

namespace {

struct Row {
  apr_status_t code;
  SCCRTN result;
};

/// The first row whose code is among the causes decides, so the particular stand before the
/// general.
constexpr Row Rows[] = {
    {SVN_ERR_CANCELLED, SCC_I_OPERATIONCANCELED},
    {SVN_ERR_AUTHN_FAILED, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_RA_NOT_AUTHORIZED, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_AUTHN_NO_PROVIDER, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_AUTHN_CREDS_UNAVAILABLE, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_AUTHZ_UNREADABLE, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_AUTHZ_UNWRITABLE, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_RA_DAV_FORBIDDEN, SCC_E_NOTAUTHORIZED},
    {SVN_ERR_FS_NO_USER, SCC_E_INVALIDUSER},
    {SVN_ERR_FS_PATH_ALREADY_LOCKED, SCC_E_FILEOUTEXCLUSIVE},
    {SVN_ERR_FS_LOCK_OWNER_MISMATCH, SCC_E_FILEOUTEXCLUSIVE},
    {SVN_ERR_FS_BAD_LOCK_TOKEN, SCC_E_NOTCHECKEDOUT},
    {SVN_ERR_FS_NO_SUCH_LOCK, SCC_E_NOTCHECKEDOUT},
    {SVN_ERR_CLIENT_NO_LOCK_TOKEN, SCC_E_NOTCHECKEDOUT},
    {SVN_ERR_WC_FOUND_CONFLICT, SCC_E_FIXMERGE},
    {SVN_ERR_FS_TXN_OUT_OF_DATE, SCC_E_CHECKINCONFLICT},
    {SVN_ERR_FS_OUT_OF_DATE, SCC_E_CHECKINCONFLICT},
    {SVN_ERR_FS_CONFLICT, SCC_E_CHECKINCONFLICT},
    {SVN_ERR_WC_NOT_UP_TO_DATE, SCC_E_CHECKINCONFLICT},
    {SVN_ERR_UNVERSIONED_RESOURCE, SCC_E_FILENOTCONTROLLED},
    {SVN_ERR_WC_PATH_NOT_FOUND, SCC_E_FILENOTCONTROLLED},
    {SVN_ERR_WC_NOT_WORKING_COPY, SCC_E_FILENOTCONTROLLED},
    {SVN_ERR_ENTRY_NOT_FOUND, SCC_E_FILENOTCONTROLLED},
    {SVN_ERR_FS_NOT_FOUND, SCC_E_FILENOTCONTROLLED},
    {SVN_ERR_ENTRY_EXISTS, SCC_E_FILEALREADYEXISTS},
    {SVN_ERR_FS_ALREADY_EXISTS, SCC_E_FILEALREADYEXISTS},
    {SVN_ERR_BAD_URL, SCC_E_PROJSYNTAXERR},
    {SVN_ERR_RA_ILLEGAL_URL, SCC_E_PROJSYNTAXERR},
    {SVN_ERR_RA_LOCAL_REPOS_OPEN_FAILED, SCC_E_UNKNOWNPROJECT},
    {SVN_ERR_RA_SVN_REPOS_NOT_FOUND, SCC_E_UNKNOWNPROJECT},
    {SVN_ERR_RA_CANNOT_CREATE_SESSION, SCC_E_ACCESSFAILURE},
    {SVN_ERR_RA_SVN_CONNECTION_CLOSED, SCC_E_ACCESSFAILURE},
    {SVN_ERR_RA_SVN_IO_ERROR, SCC_E_ACCESSFAILURE},
    {SVN_ERR_WC_LOCKED, SCC_E_ACCESSFAILURE},
    {SVN_ERR_SQLITE_BUSY, SCC_E_ACCESSFAILURE},
};

}  // namespace

SCCRTN resultOf(const svn_error_t* error) {
  if (!error) return SCC_OK;
  // Only reads; the library has no constant form of it.
  auto* chain = const_cast<svn_error_t*>(error);
  for (const Row& row : Rows) {
    if (svn_error_find_cause(chain, row.code)) return row.result;
  }
  return SCC_E_NONSPECIFICERROR;
}

std::string textOf(const svn_error_t* error) {
  std::string text;
  std::string last;
  for (; error; error = error->child) {
    std::array<char, 1024> buffer{};
    const std::string part = svn_err_best_message(error, buffer.data(), buffer.size());
    if (part == last) continue;
    text += (text.empty() ? "" : ": ") + part;
    last = part;
  }
  return text;
}

Failure::Failure(const svn_error_t& error) : m_result(resultOf(&error)), m_text(textOf(&error)) {
  auto* chain = const_cast<svn_error_t*>(&error);
  m_isAboutRecords = svn_error_find_cause(chain, SVN_ERR_WC_LOCKED) != nullptr ||
                     svn_error_find_cause(chain, SVN_ERR_WC_CLEANUP_REQUIRED) != nullptr;
}

void check(svn_error_t* error) {
  if (!error) return;
  const Failure failure(*error);
  svn_error_clear(error);
  throw failure;
}

}  // namespace veldra::subversion
