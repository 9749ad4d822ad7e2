#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/core/CMArchive.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMUnit.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra::bench {

namespace {

/// Starts /bin/true, reads its two outputs to their ends, and waits for it.
void spawnAndRead() {
  std::array<int, 2> out{};
  std::array<int, 2> err{};
  if (pipe2(out.data(), O_CLOEXEC) != 0 || pipe2(err.data(), O_CLOEXEC) != 0) std::abort();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, out[1], 1);
  posix_spawn_file_actions_adddup2(&actions, err[1], 2);
  std::string program = "/bin/true";
  std::array<char*, 2> arguments{program.data(), nullptr};
  pid_t child = 0;
  if (posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ) != 0) {
    std::abort();
  }
  posix_spawn_file_actions_destroy(&actions);
  close(out[1]);
  close(err[1]);
  std::array<char, 4096> buffer{};
  for (const int end : {out[0], err[0]}) {
    while (read(end, buffer.data(), buffer.size()) > 0) {
    }
    close(end);
  }
  int status = 0;
  waitpid(child, &status, 0);
}

}  // namespace

double executeAgainstSpawn() {
  const BenchProject project(1, "/bin/true");
  constexpr int Batch = 200;
  return ratioOf(
      15,
      [] {
        for (int i = 0; i < Batch; ++i) {
          std::string output;
          std::string error;
          if (theCMToolShellInterface().Execute("/bin/true", output, error, "") != 1) std::abort();
        }
      },
      [] {
        for (int i = 0; i < Batch; ++i) spawnAndRead();
      });
}

double expansionAgainstProcess() {
  const BenchProject project(1, "/bin/true");
  CMArchive archive{std::string("/archive")};
  CMUnit unit(project.units(1).front());
  CMLabel label("1.3");
  CMLog log("a comment");
  CMMode mode(CMMode::ReadWrite);
  const ArgumentList arguments{&label, &log, &mode, &archive, &unit};
  constexpr int Batch = 2000;
  const double expansions = ratioOf(
      15,
      [&] {
        for (int i = 0; i < Batch; ++i) {
          std::string command;
          std::string extra;
          const int result = CMProperty::Expand(
              "tool co $mode ($label ? -r $label : ) -a $archive -m $log -- \"$UnitPath\"",
              arguments, command, extra);
          if (result != 1) std::abort();
        }
      },
      [] {
        for (int i = 0; i < Batch / 100; ++i) spawnAndRead();
      });
  return expansions / 100;
}

}  // namespace veldra::bench
