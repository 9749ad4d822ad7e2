#include "tests/live/Credentials.h"

#include <gtest/gtest.h>

namespace veldra::live {

namespace {

std::string entry(const std::string& name, const std::string& value) {
  return "K " + std::to_string(name.size()) + "\n" + name + "\nV " + std::to_string(value.size()) +
         "\n" + value + "\n";
}

}  // namespace

void keepCredentials(const Sandbox& sandbox, const std::string& home, const std::string& realm,
                     const std::string& user, const std::string& password) {
  std::string kept = entry("svn:realmstring", realm) + entry("username", user);
  if (!password.empty()) kept += entry("passtype", "simple") + entry("password", password);
  const std::string kind = password.empty() ? "svn.username" : "svn.simple";
  const std::string name = sandbox.run({"md5sum"}, realm).out.substr(0, 32);
  sandbox.write(home + "/.subversion/auth/" + kind + "/" + name, kept + "END\n");
}

}  // namespace veldra::live
