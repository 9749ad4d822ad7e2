#include <chrono>
#include <filesystem>
#include <thread>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"

namespace veldra::bench {

double statusAgainstSubversion() {
  const TempFolder folder;
  const std::string model = (folder.path() / "model").string();
  const std::string copy = (folder.path() / "copy").string();
  const std::string url = "file://" + (folder.path() / "archive").string();
  std::filesystem::create_directories(model);
  writeModel(model, 20000);
  runQuietly("svnadmin create '" + (folder.path() / "archive").string() + "'");
  runQuietly("svn import -q -m model '" + model + "' '" + url + "'");
  runQuietly("svn checkout -q '" + url + "' '" + copy + "'");
  const std::string cache = "XDG_CACHE_HOME='" + (folder.path() / "cache").string() + "' ";
  // What was written a moment ago is not remembered, by neither of the two.
  std::this_thread::sleep_for(std::chrono::seconds(3));
  return ratioOf(
      15, [&] { runQuietly(cache + commandLineProgram() + " -p '" + copy + "' status"); },
      [&] { runQuietly("svn status -v '" + copy + "'"); });
}

}  // namespace veldra::bench
