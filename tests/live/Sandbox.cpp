#include "tests/live/Sandbox.h"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace veldra::live {

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& word) {
  std::string out = "'";
  for (const char c : word) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

std::string bytesOf(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool ownerMayWrite(const fs::path& file) {
  return (fs::status(file).permissions() & fs::perms::owner_write) != fs::perms::none;
}

std::string newRoot() {
  std::string root = (fs::temp_directory_path() / "veldra-live-XXXXXX").string();
  if (mkdtemp(root.data()) == nullptr) throw std::runtime_error("no folder for the test");
  return fs::canonical(root).string();
}

}  // namespace

Sandbox::Sandbox() : m_root(newRoot()) {
  for (const char* folder : {"io", "home", "tmp"}) fs::create_directory(path(folder));
  m_environment = {{"CM", VELDRA_CM_PROGRAM},
                   {"HOME", path("home")},
                   {"TMPDIR", path("tmp")},
                   {"XDG_CACHE_HOME", path("home/.cache")},
                   {"XDG_CONFIG_HOME", path("home/.config")},
                   {"XDG_STATE_HOME", path("home/.state")},
                   {"VELDRA_SITE", path("home/site.toml")},
                   {"LC_ALL", "C.UTF-8"},
                   {"TZ", "UTC"}};
}

Sandbox::~Sandbox() {
  std::error_code ignored;
  fs::remove_all(m_root, ignored);
}

std::string Sandbox::path(const std::string& name) const {
  return name.empty() ? m_root : m_root + "/" + name;
}

Ended Sandbox::shell(const std::string& script) const {
  write("io/in.sh", script);
  std::string line = "cd " + quoted(m_root) + " && env";
  for (const auto& [name, value] : m_environment) line += " " + quoted(name + "=" + value);
  line += " sh io/in.sh >io/out 2>io/err";
  const int status = std::system(line.c_str());
  Ended ended{.out = read("io/out"), .err = read("io/err")};
  ended.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return ended;
}

Ended Sandbox::run(const std::vector<std::string>& command, const std::string& input) const {
  write("io/in", input);
  std::string line = "exec";
  for (const std::string& word : command) line += " " + quoted(word);
  return shell(line + " <io/in\n");
}

Ended Sandbox::cm(const std::vector<std::string>& arguments, const std::string& input) const {
  std::vector<std::string> command = {VELDRA_CM_PROGRAM};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return run(command, input);
}

void Sandbox::set(const std::string& variable, const std::string& value) {
  m_environment[variable] = value;
}

void Sandbox::become(const std::string& user) {
  // RCS asks the environment. Over a local repository svn asks the system, unless it is told; the
  // servers of the tests take the user's name for a password.
  const std::string folder = "bin-" + user;
  fs::create_directories(path(folder));
  write(folder + "/svn", "#!/bin/sh\nPATH=${PATH#*:}\nexec svn --no-auth-cache --username " + user +
                             " --password " + user + " \"$@\"\n");
  fs::permissions(path(folder + "/svn"), fs::perms::owner_all);
  set("LOGNAME", user);
  set("USER", user);
  set("PATH", path(folder) + ":" + std::getenv("PATH"));
}

void Sandbox::write(const std::string& name, const std::string& bytes) const {
  fs::create_directories(fs::path(path(name)).parent_path());
  std::ofstream out(path(name), std::ios::binary | std::ios::trunc);
  out << bytes;
  if (!out.flush()) throw std::runtime_error("cannot write " + name);
}

std::string Sandbox::read(const std::string& name) const {
  return bytesOf(path(name));
}

bool Sandbox::isWritable(const std::string& name) const {
  return ownerMayWrite(path(name));
}

void Sandbox::copySample(const std::string& name) const {
  fs::copy(VELDRA_SAMPLE, path(name), fs::copy_options::recursive);
  for (const fs::directory_entry& entry : fs::directory_iterator(path(name))) {
    if (entry.path().extension() == ".vdy") fs::remove(entry.path());
  }
}

std::map<std::string, FileState> Sandbox::files(const std::string& folder) const {
  std::map<std::string, FileState> result;
  for (const auto& entry : fs::recursive_directory_iterator(path(folder))) {
    if (!entry.is_regular_file()) continue;
    result[fs::relative(entry.path(), path(folder)).string()] = {ownerMayWrite(entry.path()),
                                                                 bytesOf(entry.path().string())};
  }
  return result;
}

bool isInstalled(const std::string& program) {
  return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

}  // namespace veldra::live
