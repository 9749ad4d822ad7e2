#include <fstream>
#include <memory>
#include <stdexcept>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/core/WorkspaceUnits.h"
#include "cm/ui/logic/synchronize/SyncListing.h"
#include "host/ReferenceHost.h"

namespace veldra::bench {

namespace {

constexpr std::size_t ItemCount = 20000;
constexpr std::size_t DifferentCount = 50;

/// A working copy of an archive with that many files, of which some have been changed by somebody
/// else since.
void makeArchive(const std::string& folder, const std::string& url) {
  const std::string in = "cd '" + folder + "' && ";
  runQuietly(in + commandLineProgram() + " -p model property set Archive " + url);
  runQuietly(in +
             "svnadmin create archive && svn import -q -m drawn "
             "--config-option config:miscellany:enable-auto-props=yes "
             "--config-option 'config:auto-props:*=svn:keywords=Id' model " +
             url + " && svn checkout -q " + url + " copy && svn checkout -q " + url + " other");
  runQuietly(in + "cd other && find . -name '*.vcmp' | sort | head -n " +
             std::to_string(DifferentCount) +
             " | xargs sed -i 's/pressure/level/' && svn commit -q -m level");
}

class OpenedCopy {
 public:
  explicit OpenedCopy(const std::string& directory) : m_output("/dev/null") {
    host::HostOptions options;
    options.output = &m_output;
    m_host = std::make_unique<host::ReferenceHost>(options);
    installHost(m_host.get());
    if (const auto problem = m_host->open(directory)) throw std::runtime_error(*problem);
  }
  OpenedCopy(const OpenedCopy&) = delete;
  OpenedCopy& operator=(const OpenedCopy&) = delete;
  ~OpenedCopy() { installHost(nullptr); }

 private:
  std::ofstream m_output;
  std::unique_ptr<host::ReferenceHost> m_host;
};

void listDifferences() {
  SyncListing listing;
  DiagnosticList diagnostics;
  if (!listing.list({}, diagnostics)) throw std::runtime_error("the archive cannot be listed");
  listing.fill();
  if (listing.size() != DifferentCount) throw std::runtime_error("other items differ");
}

void readVersions() {
  const CMHeaderReader headers;
  std::size_t known = 0;
  for (const IUnit* unit : workspaceUnits()) known += headers.getVersion(unit).empty() ? 0U : 1U;
  if (known < ItemCount) throw std::runtime_error("the units have no versions");
}

}  // namespace

double synchronizeAgainstListing() {
  const TempFolder folder;
  const std::string path = folder.path().string();
  const std::string url = "file://" + path + "/archive";
  writeModel(folder.path() / "model", ItemCount);
  makeArchive(path, url);
  const OpenedCopy opened(path + "/copy");
  return ratioOf(5, listDifferences, [&] {
    runQuietly("svn list --xml --recursive " + url);
    readVersions();
  });
}

}  // namespace veldra::bench
