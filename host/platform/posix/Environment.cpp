#include "host/platform/Environment.h"

#include <errno.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "host/platform/Clock.h"
#include "host/platform/Program.h"
#include "host/platform/SystemError.h"
#include "host/platform/posix/FileDescriptor.h"
#include "host/platform/posix/WriteFully.h"

namespace veldra::host {

namespace {

/// The system would cut such a name at the NUL byte and answer for another file.
bool cannotBeNamed(const std::string& path) {
  return path.find('\0') != std::string::npos;
}

/// What the path names, links followed. False with `errno` set when it names nothing.
bool statusOf(const std::string& path, struct stat& status) {
  if (cannotBeNamed(path)) {
    errno = EINVAL;
    return false;
  }
  return ::stat(path.c_str(), &status) == 0;
}

/// The absolute name as the user wrote it. Links are kept, except where ".." steps back over one.
std::filesystem::path absoluteName(const std::filesystem::path& path, std::error_code& error) {
  for (const auto& part : path) {
    if (part == "..") return std::filesystem::canonical(path, error);
  }
  return std::filesystem::absolute(path, error).lexically_normal();
}

std::string withoutLastSeparator(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

}  // namespace

std::string Environment::omGetTempDir() {
  const char* const wanted = std::getenv("TMPDIR");
  bool exists = false;
  if (wanted != nullptr && omIsAbsolutePath(wanted) && isDirectory(wanted, exists)) {
    return withoutLastSeparator(wanted);
  }
  return "/tmp";
}

char Environment::omPathSeparator() const {
  return '/';
}

bool Environment::omIsAbsolutePath(const std::string& path) {
  return path.starts_with('/');
}

std::string Environment::omGetCurrentUser() {
  std::array<char, 4096> memory{};
  passwd entry{};
  passwd* found = nullptr;
  getpwuid_r(geteuid(), &entry, memory.data(), memory.size(), &found);
  if (found != nullptr) return found->pw_name;
  // Containers often run under a number that has no name.
  const char* const user = std::getenv("USER");
  return user != nullptr && *user != '\0' ? user : std::to_string(geteuid());
}

bool Environment::omFileExist(const std::string& path) {
  struct stat status {};
  return statusOf(path, status);
}

bool Environment::omFileExistsAndNonEmpty(const std::string& path) {
  struct stat status {};
  return statusOf(path, status) && S_ISREG(status.st_mode) && status.st_size > 0;
}

bool Environment::omFileHasWritePermission(const std::string& path) {
  struct stat status {};
  return statusOf(path, status) && (status.st_mode & S_IWUSR) != 0;
}

bool Environment::isDirectory(const std::string& path, bool& exists) {
  struct stat status {};
  exists = statusOf(path, status);
  return exists && S_ISDIR(status.st_mode);
}

std::string Environment::omGetFullPathOfDirectory(const std::string& path, std::string& errorText) {
  std::error_code error;
  std::filesystem::path directory;
  struct stat status {};
  if (path.empty()) {
    directory = std::filesystem::current_path(error);
  } else if (!statusOf(path, status)) {
    error.assign(errno, std::system_category());
  } else if (!S_ISDIR(status.st_mode)) {
    error.assign(ENOTDIR, std::system_category());
  } else {
    directory = absoluteName(path, error);
  }
  if (!error) return withoutLastSeparator(directory.string());
  m_lastError = error.value();
  errorText = unusableDirectory(path, m_lastError);
  return {};
}

bool Environment::createDirectory(const std::string& path) {
  if (!cannotBeNamed(path) && ::mkdir(path.c_str(), S_IRWXU) == 0) return true;
  m_lastError = cannotBeNamed(path) ? EINVAL : errno;
  if (m_lastError != EEXIST) return false;
  // The name can be guessed; what somebody else has put there is not used, nor a link of his.
  bool exists = false;
  return belongsToUser(path) && isDirectory(path, exists);
}

bool Environment::setCurrentDirectory(const std::string& path) {
  if (!cannotBeNamed(path) && ::chdir(path.c_str()) == 0) return true;
  m_lastError = cannotBeNamed(path) ? EINVAL : errno;
  return false;
}

std::string Environment::createTempFile(const std::string& content) {
  std::string name = omGetTempDir() + "/veldra-cm-" + std::to_string(getpid()) + "-XXXXXX";
  FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
  if (!file) {
    m_lastError = errno;
    return {};
  }
  const int error = writeFully(file.get(), content);
  if (error == 0) return name;
  m_lastError = error;
  removeFile(name);
  return {};
}

bool Environment::moveFile(const std::string& from, const std::string& to) {
  namespace fs = std::filesystem;
  std::error_code error;
  if (cannotBeNamed(from) || cannotBeNamed(to))
    error = std::make_error_code(std::errc::invalid_argument);
  if (!error) fs::create_directories(fs::path(to).parent_path(), error);
  if (!error && fs::exists(fs::symlink_status(to, error))) {
    error = std::make_error_code(std::errc::file_exists);
  } else if (error == std::errc::no_such_file_or_directory) {
    error.clear();
  }
  if (!error) fs::rename(from, to, error);
  if (error == std::errc::cross_device_link) {
    fs::copy_file(from, to, error);
    if (!error) fs::remove(from, error);
  }
  m_lastError = error.value();
  return !error;
}

void Environment::removeFile(const std::string& path) {
  if (!cannotBeNamed(path)) ::unlink(path.c_str());
}

}  // namespace veldra::host
