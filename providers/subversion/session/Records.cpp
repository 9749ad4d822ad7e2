#include "providers/subversion/session/Records.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <thread>

#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {

namespace fs = std::filesystem;

namespace {

// The system tells there which files its processes have open, as far as we may know.
constexpr char Processes[] = "/proc";

std::string rootOf(Project& project) {
  const Pool pool;
  const char* root = nullptr;
  check(svn_client_get_wc_root(&root, project.localPath.c_str(), project.client, pool, pool));
  return root;
}

std::size_t openIn(const fs::path& process, const std::string& records) {
  std::size_t count = 0;
  std::error_code failed;
  for (fs::directory_iterator at(process / "fd", failed), end; !failed && at != end;
       at.increment(failed)) {
    std::error_code gone;
    if (fs::read_symlink(at->path(), gone) == records) ++count;
  }
  return count;
}

/// Whether anybody but this project has the records open. The project itself has them once.
bool areInUse(const std::string& records) {
  if (openIn(fs::path(Processes) / "self", records) > 1) return true;
  std::error_code failed;
  const std::string self = fs::read_symlink(fs::path(Processes) / "self", failed).string();
  for (fs::directory_iterator at(Processes, failed), end; !failed && at != end;
       at.increment(failed)) {
    const std::string name = at->path().filename().string();
    const bool isProcess = name.find_first_not_of("0123456789") == std::string::npos;
    if (isProcess && name != self && openIn(at->path(), records) > 0) return true;
  }
  return false;
}

}  // namespace

bool mendRecords(Project& project) {
  using namespace std::chrono_literals;
  std::error_code unknown;
  if (!fs::is_directory(fs::path(Processes) / "self" / "fd", unknown)) return false;
  const std::string root = rootOf(project);
  for (int patience = 50; areInUse(root + "/.svn/wc.db"); --patience) {
    if (patience == 0) return false;
    std::this_thread::sleep_for(100ms);
  }
  const Pool pool;
  check(svn_client_cleanup2(root.c_str(), TRUE, TRUE, FALSE, FALSE, FALSE, project.client, pool));
  return true;
}

}  // namespace veldra::subversion
