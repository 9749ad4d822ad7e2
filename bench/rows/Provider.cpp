#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "tests/live/ProviderSession.h"

namespace veldra::bench {

namespace {

namespace fs = std::filesystem;

void run(const std::string& command) {
  if (std::system(("{ " + command + "\n} >/dev/null").c_str()) != 0)
    throw std::runtime_error(command);
}

void mustBeDone(scc::SCCRTN result) {
  if (result != scc::SCC_OK) throw std::runtime_error("the provider: " + std::to_string(result));
}

/// A model in a repository, and the provider with a working copy of it open.
class ProvidedModel {
 public:
  explicit ProvidedModel(std::size_t units) {
    // No credentials of the user's, and none left behind.
    setenv("HOME", path("").c_str(), 1);
    writeModel(path("model"), units);
    run("svnadmin create " + path("archive"));
    run("svn import -q -m model " + path("model") + " file://" + path("archive") + "/trunk");
  }

  ~ProvidedModel() {
    if (m_isServed) std::system(("kill $(cat " + path("pid") + ")").c_str());
  }
  ProvidedModel(const ProvidedModel&) = delete;
  ProvidedModel& operator=(const ProvidedModel&) = delete;

  /// Everybody on this machine may write.
  void serve() {
    std::ofstream(path("archive/conf/svnserve.conf"))
        << "[general]\nanon-access = none\nauth-access = write\npassword-db = passwd\n";
    std::ofstream(path("archive/conf/passwd")) << "[users]\nbench = bench\n";
    const std::string port = std::to_string(20000 + std::hash<std::string>()(path("")) % 20000);
    run("svnserve -d -r " + path("archive") + " --listen-host 127.0.0.1 --listen-port " + port +
        " --pid-file " + path("pid"));
    m_isServed = true;
    m_url = "svn://127.0.0.1:" + port + "/trunk";
    keepPassword("<svn://127.0.0.1:" + port + "> ");
  }

  void open() {
    if (m_url.empty()) m_url = "file://" + path("archive") + "/trunk";
    mustBeDone(m_provider.open(m_url, path("copy")));
    for (const auto& entry : fs::recursive_directory_iterator(path("copy"))) {
      const std::string name = entry.path().string();
      if (entry.is_regular_file() && name.find("/.svn/") == std::string::npos)
        m_files.push_back(name);
    }
  }

  live::ProviderSession& provider() { return m_provider; }
  live::Names files(std::size_t count) const {
    return {m_files.begin(), m_files.begin() + static_cast<std::ptrdiff_t>(count)};
  }
  const live::Names& files() const { return m_files; }
  std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }

 private:
  /// The realm of a server without a name of its own is the repository's identity.
  void keepPassword(const std::string& realmStart) const {
    const std::string folder = path(".subversion/auth/svn.simple");
    fs::create_directories(folder);
    run("realm=\"" + realmStart + "$(svnlook uuid " + path("archive") + ")\"; { " +
        "printf 'K 8\\npasstype\\nV 6\\nsimple\\nK 8\\npassword\\nV 5\\nbench\\n'; "
        "printf 'K 15\\nsvn:realmstring\\nV %d\\n%s\\n' ${#realm} \"$realm\"; "
        "printf 'K 8\\nusername\\nV 5\\nbench\\nEND\\n'; } >" +
        folder + "/$(printf %s \"$realm\" | md5sum | cut -c1-32)");
  }

  TempFolder m_folder;
  live::ProviderSession m_provider;
  live::Names m_files;
  std::string m_url;
  bool m_isServed = false;
};

}  // namespace

double queryAgainstStatus() {
  ProvidedModel model(20000);
  model.open();
  return ratioOf(
      7, [&] { mustBeDone(model.provider().query(model.files()).front() < 0 ? -1 : 0); },
      [&] { run("svn status -v " + model.path("copy")); });
}

double lockAgainstSubversion() {
  ProvidedModel model(1000);
  model.serve();
  model.open();
  const live::Names files = model.files(1000);
  std::ofstream targets(model.path("targets"));
  for (const std::string& file : files) targets << file << '\n';
  targets.close();
  const std::string targetsOption = " -q --targets " + model.path("targets");
  // Giving the locks back is part of both, because the next round needs them.
  return ratioOf(
      5,
      [&] {
        mustBeDone(model.provider().checkOut(files));
        run("svn unlock" + targetsOption);
      },
      [&] { run("svn lock" + targetsOption + " && svn unlock" + targetsOption); });
}

double getAgainstUpdate() {
  ProvidedModel model(2000);
  model.open();
  const live::Names files = model.files(2000);
  return ratioOf(
      7, [&] { mustBeDone(model.provider().get(files)); },
      [&] { run("svn update -q " + model.path("copy")); });
}

}  // namespace veldra::bench
