#include "providers/subversion/session/UserName.h"

#include <svn_auth.h>
#include <svn_config.h>
#include <svn_hash.h>
#include <svn_user.h>

#include <array>
#include <string_view>
#include <utility>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/runtime/Pool.h"

namespace veldra::subversion {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> DefaultPorts = {{
    {"svn", "3690"},
    {"http", "80"},
    {"https", "443"},
}};

/// How the realm of a server's credentials begins: "<svn://host:3690>". Empty without a server.
std::string realmOf(const std::string& url) {
  const std::size_t colon = url.find("://");
  const std::string scheme = url.substr(0, colon);
  std::string host = url.substr(colon + 3);
  host.resize(std::min(host.size(), host.find('/')));
  if (const std::size_t at = host.find('@'); at != std::string::npos) host.erase(0, at + 1);
  for (const auto& [known, port] : DefaultPorts) {
    if (scheme != known) continue;
    const bool hasPort = host.rfind(':') != std::string::npos && host.back() != ']';
    return "<" + scheme + "://" + host + (hasPort ? "" : ":" + std::string(port)) + ">";
  }
  return {};
}

struct Search {
  std::string realm;
  std::string uuid;
  std::string name;
};

svn_error_t* look(svn_boolean_t*, void* baton, const char* kind, const char* realm,
                  apr_hash_t* credentials, apr_pool_t*) {
  return withoutThrowing([&] {
    auto* const search = static_cast<Search*>(baton);
    const bool isServers = !search->realm.empty() && kind == std::string_view("svn.simple") &&
                           std::string_view(realm).starts_with(search->realm);
    // A repository on disk is known by its UUID.
    const bool isLocals =
        search->realm.empty() && kind == std::string_view("svn.username") && realm == search->uuid;
    if (!isServers && !isLocals) return;
    const auto* name =
        static_cast<const svn_string_t*>(svn_hash_gets(credentials, SVN_CONFIG_AUTHN_USERNAME_KEY));
    if (name) search->name = name->data;
  });
}

}  // namespace

std::string userNameFor(const std::string& given, const std::string& rootUrl,
                        const std::string& uuid) {
  if (!given.empty()) return given;
  const Pool pool;
  Search search{realmOf(rootUrl), uuid, {}};
  // A store that cannot be read only means that no name is found.
  svn_error_clear(svn_config_walk_auth_data(nullptr, look, &search, pool));
  if (!search.name.empty()) return search.name;
  const char* name = svn_user_get_name(pool);
  return name ? name : "";
}

}  // namespace veldra::subversion
