#include "providers/subversion/session/Client.h"

#include <svn_cmdline.h>
#include <svn_config.h>
#include <svn_error_codes.h>
#include <svn_hash.h>

#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {
namespace {

/// A tunnel must not ask for a password on the terminal. What the user has set up stays.
void silenceTunnel(svn_config_t* settings) {
  const char* command = nullptr;
  svn_config_get(settings, &command, SVN_CONFIG_SECTION_TUNNELS, "ssh", nullptr);
  if (!command) {
    svn_config_set(settings, SVN_CONFIG_SECTION_TUNNELS, "ssh",
                   "$SVN_SSH ssh -q -o BatchMode=yes --");
  }
}

}  // namespace

Client::Client(const TextOutput& output, const std::string& user) : m_output(output) {
  apr_hash_t* configuration = nullptr;
  check(svn_config_get_config(&configuration, nullptr, m_pool));
  auto* settings =
      static_cast<svn_config_t*>(svn_hash_gets(configuration, SVN_CONFIG_CATEGORY_CONFIG));
  silenceTunnel(settings);
  check(svn_client_create_context2(&m_client, configuration, m_pool));
  check(svn_cmdline_create_auth_baton2(&m_client->auth_baton, TRUE,
                                       user.empty() ? nullptr : apr_pstrdup(m_pool, user.c_str()),
                                       nullptr, nullptr, FALSE, FALSE, FALSE, FALSE, FALSE, FALSE,
                                       settings, askForCancel, this, m_pool));
  m_client->log_msg_func3 = giveComment;
  m_client->log_msg_baton3 = this;
  m_client->notify_func2 = notify;
  m_client->notify_baton2 = this;
  m_client->cancel_func = askForCancel;
  m_client->cancel_baton = this;
  m_client->client_name = "veldra-subversion";
}

svn_error_t* Client::giveComment(const char** comment, const char** file, const apr_array_header_t*,
                                 void* baton, apr_pool_t* pool) {
  *comment = apr_pstrdup(pool, static_cast<Client*>(baton)->m_comment.c_str());
  *file = nullptr;
  return SVN_NO_ERROR;
}

svn_error_t* Client::askForCancel(void* baton) {
  if (!static_cast<Client*>(baton)->m_output.isCancelled()) return SVN_NO_ERROR;
  return svn_error_create(SVN_ERR_CANCELLED, nullptr, "Cancelled.");
}

void Client::notify(void* baton, const svn_wc_notify_t* notification, apr_pool_t*) {
  auto* const client = static_cast<Client*>(baton);
  svn_error_clear(withoutThrowing([&] {
    if (client->m_listener) client->m_listener(*notification);
    if (notification->path) client->m_output.status(notification->path);
  }));
}

void Client::setComment(const char* comment) {
  m_comment.clear();
  if (!comment) return;
  // The repository takes single line feeds only.
  for (const char* c = comment; *c != '\0'; ++c) {
    if (*c != '\r') {
      m_comment += *c;
    } else if (c[1] != '\n') {
      m_comment += '\n';
    }
  }
}

svn_revnum_t Client::commit(const std::vector<std::string>& paths, svn_depth_t depth,
                            bool keepLocks, const char* comment) {
  const Pool pool;
  svn_revnum_t revision = SVN_INVALID_REVNUM;
  setComment(comment);
  check(svn_client_commit6(arrayOf(paths, pool), depth, keepLocks, FALSE, FALSE, FALSE, FALSE,
                           nullptr, nullptr, takeRevision, &revision, m_client, pool));
  return revision;
}

apr_array_header_t* arrayOf(const std::vector<std::string>& names, apr_pool_t* pool) {
  apr_array_header_t* array =
      apr_array_make(pool, static_cast<int>(names.size()), sizeof(const char*));
  for (const std::string& name : names) APR_ARRAY_PUSH(array, const char*) = name.c_str();
  return array;
}

svn_error_t* takeRevision(const svn_commit_info_t* info, void* baton, apr_pool_t*) {
  *static_cast<svn_revnum_t*>(baton) = info->revision;
  return SVN_NO_ERROR;
}

}  // namespace veldra::subversion
