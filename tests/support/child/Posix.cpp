#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/child/System.h"

namespace veldra::test {

void useBinaryStreams() {}

long ownNumber() {
  return getpid();
}

int openFiles() {
  namespace fs = std::filesystem;
  // The listing itself takes one.
  return static_cast<int>(std::distance(fs::directory_iterator("/proc/self/fd"), {})) - 1;
}

void crash() {
  // A sanitizer would take the signal for a finding of its own.
  signal(SIGSEGV, SIG_DFL);
  raise(SIGSEGV);
}

int spawn(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> texts{program};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  pid_t child = 0;
  return posix_spawnp(&child, program.c_str(), nullptr, nullptr, pointers.data(), environ) == 0
             ? 0
             : 98;
}

}  // namespace veldra::test
