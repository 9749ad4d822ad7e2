#include <unistd.h>

#include <cstdlib>
#include <ostream>
#include <streambuf>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/core/CMFacade.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra::bench {

namespace {

constexpr std::size_t FloodSize = std::size_t{200} * 1000 * 1000;

void executeFlood() {
  std::string output;
  std::string error;
  const std::string command = "\"" + ownProgram() + "\" --print-flood";
  if (theCMToolShellInterface().Execute(command, output, error, "") != 1) std::abort();
  // What is on the error output takes precedence; the lines of the other are read all the same.
  if (error.size() != FloodSize) std::abort();
}

}  // namespace

int printFlood() {
  std::string block;
  while (block.size() < 64000)
    block += "a line of a tool that talks and talks and talks and talk\n";
  block.resize(50000, '\n');
  for (std::size_t written = 0; written < FloodSize; written += block.size()) {
    for (const int output : {1, 2}) {
      std::string_view rest = block;
      while (!rest.empty()) {
        const ssize_t count = write(output, rest.data(), rest.size());
        if (count <= 0) return 1;
        rest.remove_prefix(static_cast<std::size_t>(count));
      }
    }
  }
  return 0;
}

double floodAgainstCat() {
  const BenchProject project(1, "/bin/true");
  const std::string cat =
      "{ '" + ownProgram() + "' --print-flood 2>&1 >&3 | cat >/dev/null; } 3>&1 | cat >/dev/null";
  return ratioOf(5, executeFlood, [&] {
    if (std::system(cat.c_str()) != 0) std::abort();
  });
}

double floodMemory() {
  const BenchProject project(1, "/bin/true");
  const std::size_t before = residentBytes();
  executeFlood();
  const std::size_t held = peakResidentBytes() - before;
  return static_cast<double>(held) / static_cast<double>(2 * FloodSize);
}

}  // namespace veldra::bench
