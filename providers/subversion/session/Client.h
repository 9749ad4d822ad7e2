#pragma once

#include <svn_client.h>

#include <functional>
#include <string>
#include <vector>

#include "providers/subversion/runtime/Pool.h"
#include "providers/subversion/session/TextOutput.h"

namespace veldra::subversion {

/// A client of libsvn that asks nobody anything: credentials come from Subversion's own stores,
/// conflicts are left for later, comments are given beforehand.
class Client {
 public:
  using Listener = std::function<void(const svn_wc_notify_t&)>;

  /// `user` is the name to log in with; empty for the one that the stores or the system know.
  /// `output` is asked whether to cancel and must outlive the client.
  Client(const TextOutput& output, const std::string& user);
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  svn_client_ctx_t* get() const { return m_client; }
  operator svn_client_ctx_t*() const { return m_client; }

  /// Hears of each file that a command handles; empty for nobody.
  void setListener(Listener listener) { m_listener = std::move(listener); }

  /// Commits these paths, a directory with all that is in it when `depth` says so. The revision, or
  /// `SVN_INVALID_REVNUM` when there was nothing to commit.
  svn_revnum_t commit(const std::vector<std::string>& paths, svn_depth_t depth, bool keepLocks,
                      const char* comment);

  /// The comment of the commits that follow, for commands that commit by themselves.
  void setComment(const char* comment);

 private:
  static svn_error_t* giveComment(const char** comment, const char** file,
                                  const apr_array_header_t* items, void* baton, apr_pool_t* pool);
  static svn_error_t* askForCancel(void* baton);
  static void notify(void* baton, const svn_wc_notify_t* notification, apr_pool_t* pool);

  Pool m_pool;
  const TextOutput& m_output;
  svn_client_ctx_t* m_client = nullptr;
  Listener m_listener;
  std::string m_comment;
};

/// Listens to a client for the length of a block.
class Listening {
 public:
  Listening(Client& client, Client::Listener listener) : m_client(client) {
    m_client.setListener(std::move(listener));
  }
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
  ~Listening() { m_client.setListener({}); }

 private:
  Client& m_client;
};

/// The names as libsvn takes them; they must outlive the array.
apr_array_header_t* arrayOf(const std::vector<std::string>& names, apr_pool_t* pool);

/// A commit callback that stores the revision into the `svn_revnum_t` of its baton.
svn_error_t* takeRevision(const svn_commit_info_t* info, void* baton, apr_pool_t* pool);

constexpr svn_opt_revision_t HeadRevision{svn_opt_revision_head, {}};
constexpr svn_opt_revision_t WorkingRevision{svn_opt_revision_working, {}};
constexpr svn_opt_revision_t NoRevision{svn_opt_revision_unspecified, {}};

}  // namespace veldra::subversion
