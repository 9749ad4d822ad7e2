#pragma once

#include <svn_types.h>

#include <memory>
#include <string>
#include <unordered_map>

#include "cm/scc/interface/SccStatus.h"

struct svn_client_status_t;

namespace veldra::subversion {

/// Who holds a file, as the repository has it.
struct Holder {
  std::string token;
  std::string owner;
  std::string comment;
  apr_time_t since = 0;
};

/// What is known of a file or directory.
struct FileState {
  bool isDirectory = false;
  bool isControlled = false;  ///< The store has it, or had it when the working copy was brought up.
  bool isScheduled = false;   ///< For addition; the store does not have it yet.
  bool isMissing = false;     ///< Controlled, and not on the disk.
  bool isModified = false;
  bool isConflicted = false;
  bool isDeleted = false;    ///< In the store, or to be with the next commit.
  bool isOutOfDate = false;  ///< The store has something newer.
  bool isOnlyThere = false;  ///< In the store, not in the working copy.
  svn_revnum_t revision = SVN_INVALID_REVNUM;
  const std::string* root = nullptr;  ///< URL of the repository.
  std::string pathInStore;            ///< From the repository's root, without a slash at the front.
  std::string token;                  ///< Of the lock that the working copy holds; empty for none.
  std::shared_ptr<const Holder> holder;  ///< Only known after the store was asked.

  /// Checked out into this working copy, as far as the working copy knows.
  bool isHeldHere() const { return !token.empty(); }
  /// The same, and the store agrees.
  bool isCheckedOut() const { return holder && holder->token == token; }
};

std::shared_ptr<const Holder> holderFrom(const svn_lock_t& lock);

using FileStates = std::unordered_map<std::string, FileState>;

/// The state as libsvn reports it; with what the store says when it was asked.
FileState stateOf(const svn_client_status_t& status);

/// The status word of the interface. `user` is who asks.
[[nodiscard]] scc::LONG statusWordOf(const FileState& state, const std::string& user);

}  // namespace veldra::subversion
