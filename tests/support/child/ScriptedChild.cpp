// A child process that does what its arguments say, one step after the other. It is the same on
// every system, which no shell is.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/child/System.h"

namespace {

namespace fs = std::filesystem;
using Arguments = std::span<const std::string>;

void writeTo(std::FILE* stream, const std::string& bytes) {
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  std::fflush(stream);
}

void say(const std::string& text) {
  writeTo(stdout, text + '\n');
}

/// Steps with one operand each.
const std::map<std::string, std::function<void(const std::string&)>> steps = {
    {"out", [](const std::string& text) { say(text); }},
    {"err", [](const std::string& text) { writeTo(stderr, text + '\n'); }},
    {"half-err", [](const std::string& text) { writeTo(stderr, text); }},
    {"flood",
     [](const std::string& bytes) { writeTo(stdout, std::string(std::stoul(bytes), '\0')); }},
    {"flood-err",
     [](const std::string& bytes) { writeTo(stderr, std::string(std::stoul(bytes), '\0')); }},
    {"sleep",
     [](const std::string& time) {
       std::this_thread::sleep_for(std::chrono::milliseconds(std::stol(time)));
     }},
    {"exit", [](const std::string& code) { std::_Exit(std::stoi(code)); }},
    {"touch", [](const std::string& file) { std::ofstream{file}; }},
    {"allow-writing",
     [](const std::string& file) {
       fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
     }},
    {"forbid-writing",
     [](const std::string& file) {
       fs::permissions(file,
                       fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                       fs::perm_options::remove);
     }},
    {"env",
     [](const std::string& name) {
       const char* const value = std::getenv(name.c_str());
       say(name + '=' + (value ? value : "<none>"));
     }},
};

/// Steps without one.
const std::map<std::string, std::function<void()>> plainSteps = {
    {"pid", [] { say(std::to_string(veldra::test::ownNumber())); }},
    {"crash", [] { veldra::test::crash(); }},
    {"forever",
     [] {
       for (;;) writeTo(stdout, "0123456789abcdef\n");
     }},
    {"input", [] { say("input " + std::string(std::istreambuf_iterator<char>(std::cin), {})); }},
    {"files", [] { say("files " + std::to_string(veldra::test::openFiles())); }},
    {"where", [] { say(fs::current_path().string()); }},
};

/// Replaces a file, one that may not be written too.
void copyFile(const std::string& from, const std::string& to) {
  std::error_code missing;
  fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, missing);
  fs::remove(to, missing);
  fs::create_directories(fs::path(to).parent_path());
  fs::copy_file(from, to);
}

/// The arguments as they came, each with its length, so that no byte of them can mislead.
void tellArguments(Arguments arguments) {
  for (const std::string& argument : arguments)
    say(std::to_string(argument.size()) + ':' + argument);
}

/// The arguments into a file, for a child whose output nobody sees. It appears there as a whole.
void tellArgumentsTo(const std::string& file, Arguments arguments) {
  {
    std::ofstream stream(file + ".new", std::ios::binary);
    for (const std::string& argument : arguments) stream << argument << '|';
  }
  fs::rename(file + ".new", file);
}

int run(const std::string& self, Arguments arguments) {
  while (!arguments.empty()) {
    const std::string& step = arguments.front();
    arguments = arguments.subspan(1);
    if (step == "arguments") {
      tellArguments(arguments);
      return 0;
    }
    if (step == "arguments-to" && !arguments.empty()) {
      tellArgumentsTo(arguments.front(), arguments.subspan(1));
      return 0;
    }
    // Everything that follows is what a child of this child does.
    if (step == "spawn" || step == "spawn-and-stay") {
      const int code = veldra::test::spawn(self, {arguments.begin(), arguments.end()});
      if (step == "spawn-and-stay") std::this_thread::sleep_for(std::chrono::hours(1));
      return code;
    }
    if (const auto plain = plainSteps.find(step); plain != plainSteps.end()) {
      plain->second();
      continue;
    }
    if (step == "copy" && arguments.size() > 1) {
      copyFile(arguments[0], arguments[1]);
      arguments = arguments.subspan(2);
      continue;
    }
    const auto found = steps.find(step);
    if (found == steps.end() || arguments.empty()) return 99;
    found->second(arguments.front());
    arguments = arguments.subspan(1);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  veldra::test::useBinaryStreams();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return run(argv[0], arguments);
}
