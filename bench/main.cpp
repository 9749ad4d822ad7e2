// Measures every row and prints name, ratio, goal, and whether the goal is met.

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "bench/BenchProject.h"
#include "bench/Rows.h"

namespace {

struct Row {
  const char* name;
  double (*measure)();
  double goal;
  /// Its memory, or its windows, would disturb other rows.
  bool ownProcess = false;
};

using namespace veldra::bench;

constexpr auto Rows = std::to_array<Row>({
    {"commands: 1,000 check-ins that do nothing / sh loop", commandsAgainstShell, 1.0},
    {"execute: one Execute of /bin/true / posix_spawn, two pipes, wait", executeAgainstSpawn, 1.15},
    {"expand: condition and five keywords / one process", expansionAgainstProcess, 0.01},
    {"listing: 100,000 records / Perl", listingAgainstPerl, 0.7},
    {"listing-memory: bytes held / bytes listed", listingMemory, 4.0, true},
    {"checkout: 10,000 units / 1,000 units", checkoutGrowth, 10.5},
    {"status: 20,000 units, cold / svn status -v", statusAgainstSubversion, 1.0},
    {"checkin-batch: 500 changed units, -r, Subversion / one svn commit",
     checkinBatchAgainstSubversion, 1.3},
    {"add-batch: 2,000 new units, --all, Subversion / svn add, svn commit",
     addBatchAgainstSubversion, 1.5},
    {"checkout-each: 500 units, Subversion / sh loop of the same commands", checkoutAgainstShell,
     1.05},
    {"ls-git: archive of 20,000 files / the tool's own listing", gitListing, 1.2},
    {"ls-svn: archive of 20,000 files / the tool's own listing", subversionListing, 1.2},
    {"sync: 20,000 items, 50 differ, Subversion / svn list, reading versions",
     synchronizeAgainstListing, 1.3},
    {"query: 20,000 units of a provider / svn status -v", queryAgainstStatus, 0.8},
    {"lock: 1,000 units of a provider over loopback / svn lock", lockAgainstSubversion, 1.1},
    {"get: 2,000 unchanged units of a provider / svn update", getAgainstUpdate, 1.2},
    {"consumer: 100,000 instant calls / loop over a pointer, and the trace", consumerAgainstLoop,
     1.5},
    {"flood: 200 MB on each output / cat through two pipes", floodAgainstCat, 1.5},
    {"flood-memory: bytes held / bytes printed", floodMemory, 3.0, true},
    {"compare: two revisions of 50,000 elements / diff, and the parsing of both",
     comparisonAgainstDiff, 2.0},
#ifdef VELDRA_BENCH_DIALOGS
    {"open-list: dialog on 100,000 units, first frame / bare view", openListAgainstBareView, 1.5,
     true},
    {"open-tree: the same with the tree", openTreeAgainstBareView, 1.5, true},
    {"open-archive: browser on 100,000 items, first frame / bare view", openArchiveAgainstBareView,
     1.5, true},
    {"open-memory: bytes of the dialog per unit", dialogMemory, 200, true},
    {"sort: 100,000 rows, worst column / std::sort of the strings", sortAgainstStdSort, 1.5, true},
    {"refill: after a command on one of 100,000 units / opening", refillAgainstOpening, 0.5, true},
    {"refill-selected: with 10,000 rows selected / with none", refillKeepsSelection, 1.3, true},
#endif
});

bool isWanted(std::string_view name, int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (name.substr(0, name.find(':')) == argv[i]) return true;
  }
  return argc == 1;
}

/// The row's figure, measured by another process of this program.
double figureOfOwnProcess(const Row& row) {
  const std::string_view name(row.name);
  const std::string command =
      "'" + ownProgram() + "' --figure " + std::string(name.substr(0, name.find(':')));
  std::FILE* const pipe = popen(command.c_str(), "r");
  double figure = 0;
  const bool isRead = pipe != nullptr && std::fscanf(pipe, "%lf", &figure) == 1;
  if (pipe == nullptr || pclose(pipe) != 0 || !isRead) throw std::runtime_error(command);
  return figure;
}

int printFigure(int argc, char** argv) {
  for (const Row& row : Rows) {
    if (isWanted(row.name, argc, argv)) std::printf("%.4f\n", row.measure());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--print-flood") return printFlood();
  if (argc == 3 && std::string_view(argv[1]) == "--figure") return printFigure(argc - 1, argv + 1);
  int failed = 0;
  for (const Row& row : Rows) {
    if (!isWanted(row.name, argc, argv)) continue;
    try {
      const double ratio = row.ownProcess ? figureOfOwnProcess(row) : row.measure();
      std::printf("%-66s %8.4f  at most %-6g %s\n", row.name, ratio, row.goal,
                  ratio <= row.goal ? "met" : "missed");
    } catch (const std::exception& e) {
      std::printf("%-66s could not be measured: %s\n", row.name, e.what());
      failed = 1;
    }
    std::fflush(stdout);
  }
  return failed;
}
