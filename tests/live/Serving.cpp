#include "tests/live/Serving.h"

namespace veldra::live {

std::string serveSubversion(Job& job, std::optional<Server>& server) {
  const int port = freePort();
  job.sandbox().write("archive/conf/svnserve.conf",
                      "[general]\nanon-access = none\nauth-access = write\npassword-db = passwd\n"
                      "realm = models\n");
  job.sandbox().write("archive/conf/passwd", "[users]\nalice = alice\nbob = bob\n");
  server.emplace(job.sandbox(),
                 std::vector<std::string>{"svnserve", "--daemon", "--foreground", "--listen-host",
                                          "127.0.0.1", "--listen-port", std::to_string(port),
                                          "--root", job.sandbox().path()},
                 port);
  return "svn://127.0.0.1:" + std::to_string(port) + "/archive";
}

std::string serveGit(Job& job, std::optional<Server>& server) {
  const int port = freePort();
  server.emplace(
      job.sandbox(),
      std::vector<std::string>{"git", "daemon", "--reuseaddr", "--listen=127.0.0.1",
                               "--port=" + std::to_string(port), "--export-all",
                               "--enable=receive-pack", "--base-path=" + job.sandbox().path()},
      port);
  return "git://127.0.0.1:" + std::to_string(port) + "/archive";
}

std::string serveMercurial(Job& job, std::optional<Server>& server) {
  const int port = freePort();
  server.emplace(job.sandbox(),
                 std::vector<std::string>{"hg", "serve", "-R", "archive", "-a", "127.0.0.1", "-p",
                                          std::to_string(port), "--config", "web.allow-push=*",
                                          "--config", "web.push_ssl=no"},
                 port);
  return "http://127.0.0.1:" + std::to_string(port) + "/";
}

/// A program in place of ssh that stays on this machine.
std::string serveCvs(Job& job, std::optional<Server>& /*server*/) {
  // The last argument is a command line.
  job.sandbox().write("rsh", "#!/bin/sh\nfor line do :; done\nexec sh -c \"$line\"\n");
  job.sandbox().shell("chmod +x rsh");
  job.sandbox().set("CVS_RSH", job.sandbox().path("rsh"));
  return ":ext:server:" + job.tool().archive() + "//model";
}

std::string shareDirectory(Job& job, std::optional<Server>& /*server*/) {
  return job.tool().archive();
}

}  // namespace veldra::live
