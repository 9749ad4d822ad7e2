#include "providers/subversion/session/Repository.h"

#include <svn_dirent_uri.h>
#include <svn_error_codes.h>
#include <svn_io.h>
#include <svn_path.h>
#include <svn_ra.h>
#include <svn_repos.h>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/session/FileNames.h"

namespace veldra::subversion {

using namespace scc;

std::string urlFrom(const std::string& text) {
  const Pool pool;
  if (svn_path_is_url(text.c_str())) {
    const char* url = nullptr;
    check(svn_uri_canonicalize_safe(&url, nullptr, text.c_str(), pool, pool));
    return url;
  }
  const char* path = svn_dirent_internal_style(text.c_str(), pool);
  if (text.empty() || !svn_dirent_is_absolute(path)) return {};
  const char* url = nullptr;
  check(svn_uri_get_file_url_from_dirent(&url, path, pool));
  return url;
}

bool isOnDisk(const std::string& url) {
  return url.starts_with("file:");
}

namespace {

std::string pathOnDisk(const std::string& url, apr_pool_t* pool) {
  const char* path = nullptr;
  check(svn_uri_get_dirent_from_file_url(&path, url.c_str(), pool));
  return path;
}

bool hasRepository(const std::string& url) {
  const Pool pool;
  return svn_repos_find_root_path(pathOnDisk(url, pool).c_str(), pool) != nullptr;
}

void createRepository(const std::string& url) {
  const Pool pool;
  std::string path = pathOnDisk(url, pool);
  if (lastPartOf(path) == "trunk") path = svn_dirent_dirname(path.c_str(), pool);
  check(svn_io_make_dir_recursively(svn_dirent_dirname(path.c_str(), pool), pool));
  svn_repos_t* repository = nullptr;
  if (svn_error_t* error =
          svn_repos_create(&repository, path.c_str(), nullptr, nullptr, nullptr, nullptr, pool)) {
    const Failure failure(SCC_E_COULDNOTCREATEPROJECT, textOf(error));
    svn_error_clear(error);
    throw failure;
  }
}

}  // namespace

bool isFolderInStore(Client& client, const std::string& url) {
  if (isOnDisk(url) && !hasRepository(url)) return false;
  const Pool pool;
  svn_ra_session_t* session = nullptr;
  check(svn_client_open_ra_session2(&session, url.c_str(), nullptr, client, pool, pool));
  svn_node_kind_t kind = svn_node_none;
  check(svn_ra_check_path(session, "", SVN_INVALID_REVNUM, &kind, pool));
  return kind == svn_node_dir;
}

void createProject(Client& client, const std::string& url, const char* comment) {
  if (isOnDisk(url) && !hasRepository(url)) createRepository(url);
  if (isFolderInStore(client, url)) return;
  const Pool pool;
  client.setComment(comment && *comment != '\0' ? comment : "Make the project's folder.");
  check(svn_client_mkdir4(arrayOf({url}, pool), TRUE, nullptr, nullptr, nullptr, client, pool));
}

Repository repositoryOf(Client& client, const std::string& url) {
  const Pool pool;
  const char* root = nullptr;
  const char* uuid = nullptr;
  check(svn_client_get_repos_root(&root, &uuid, url.c_str(), client, pool, pool));
  return {root, uuid};
}

}  // namespace veldra::subversion
