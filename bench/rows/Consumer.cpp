#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/host/Host.h"
#include "cm/scc/ProviderCall.h"

namespace veldra::bench {

namespace {

constexpr int Calls = 100000;

/// What a trace log holds after its date, time and place.
std::vector<std::string> traced(const std::filesystem::path& log) {
  std::vector<std::string> texts;
  std::ifstream stream(log);
  for (std::string line; std::getline(stream, line);) {
    std::size_t start = 0;
    for (int field = 0; field < 3; ++field) start = line.find(' ', start) + 1;
    texts.push_back(line.substr(start));
  }
  return texts;
}

}  // namespace

double consumerAgainstLoop() {
  const TempFolder folder;
  const std::filesystem::path log = folder.path() / "trace.log";
  const BenchProject project(1, "/bin/true", log.string());
  SCCdll& provider = providerState().dll;
  provider.setPath(VELDRA_INSTANT_PROVIDER);
  if (!provider.load()) throw std::runtime_error(provider.loadError());
  const std::string file = "/model/Unit.vcmp";
  const auto call = [&] {
    FileNames names(file);
    callOnFiles(provider.SccGet, CallLines::PrePostAndReturn, nullptr, nullptr, names, scc::LONG{0},
                scc::LPCMDOPTS{nullptr});
  };
  call();
  const std::vector<std::string> lines = traced(log);

  std::string error;
  const auto library = installedHost()->libraries()->load(VELDRA_INSTANT_PROVIDER, error);
  auto* const get = reinterpret_cast<scc::SccGetFn*>(library->find("SccGet"));
  const double ratio = ratioOf(
      3,
      [&] {
        for (int i = 0; i < Calls; ++i) call();
      },
      [&] {
        for (int i = 0; i < Calls; ++i) {
          const char* name = file.c_str();
          get(nullptr, nullptr, 1, &name, 0, nullptr);
          for (const std::string& line : lines) VELDRA_TRACE(line);
        }
      });
  provider.release();
  return ratio;
}

}  // namespace veldra::bench
