#include "host/platform/Environment.h"

#include <windows.h>

#include <lmcons.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "host/platform/FileHead.h"
#include "host/platform/FileNames.h"
#include "host/platform/Program.h"
#include "host/platform/SystemError.h"
#include "host/platform/win32/FileOwner.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

DWORD attributesOf(const std::string& path) {
  return GetFileAttributesW(nativePath(path).c_str());
}

bool isFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The root of a drive keeps its separator, without which it would name the drive's present folder.
std::string withoutLastSeparator(std::string path) {
  while (path.size() > 1 && (path.back() == '\\' || path.back() == '/') &&
         path[path.size() - 2] != ':') {
    path.pop_back();
  }
  return path;
}

/// The absolute name of a directory; the empty name is the current one. 0 or the error's number.
int absoluteName(const std::string& path, std::string& absolute) {
  std::wstring name = path.empty() ? std::wstring(L".") : nativePath(path);
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return lastError();
  if (!isFolder(attributes)) return ERROR_DIRECTORY;
  std::wstring full(32768, L'\0');
  full.resize(
      GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  if (full.empty()) return lastError();
  absolute = withoutLastSeparator(fromNativePath(full));
  return 0;
}

std::string randomEnding() {
  constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyz0123456789";
  static std::random_device random;
  std::string ending;
  for (int i = 0; i < 6; ++i) ending += Letters[random() % Letters.size()];
  return ending;
}

}  // namespace

std::string Environment::omGetTempDir() {
  const char* const wanted = std::getenv("TMPDIR");
  bool exists = false;
  if (wanted != nullptr && omIsAbsolutePath(wanted) && isDirectory(wanted, exists)) {
    return withoutLastSeparator(wanted);
  }
  std::array<wchar_t, MAX_PATH + 1> folder{};
  const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
  return withoutLastSeparator(fromWide({folder.data(), length}));
}

char Environment::omPathSeparator() const {
  return '\\';
}

bool Environment::omIsAbsolutePath(const std::string& path) {
  return isAbsoluteOnWindows(path);
}

std::string Environment::omGetCurrentUser() {
  std::array<wchar_t, UNLEN + 1> name{};
  DWORD size = static_cast<DWORD>(name.size());
  if (GetUserNameW(name.data(), &size) && size > 1) return fromWide({name.data(), size - 1});
  const char* const user = std::getenv("USERNAME");
  return user != nullptr ? user : "";
}

bool Environment::omFileExist(const std::string& path) {
  return attributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

bool Environment::omFileExistsAndNonEmpty(const std::string& path) {
  const FileFacts facts = readFileFacts(path);
  return facts.state == FileFacts::State::Readable && facts.size > 0;
}

bool Environment::omFileHasWritePermission(const std::string& path) {
  const DWORD attributes = attributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

bool Environment::isDirectory(const std::string& path, bool& exists) {
  const DWORD attributes = attributesOf(path);
  exists = attributes != INVALID_FILE_ATTRIBUTES;
  return isFolder(attributes);
}

std::string Environment::omGetFullPathOfDirectory(const std::string& path, std::string& errorText) {
  std::string absolute;
  const int error = absoluteName(path, absolute);
  if (error == 0) return absolute;
  m_lastError = error;
  errorText = unusableDirectory(path, error);
  return {};
}

bool Environment::createDirectory(const std::string& path) {
  const std::wstring name = nativePath(path);
  PrivateAccess access;
  if (name.empty() || windowsNameProblem(path)) {
    m_lastError = ERROR_INVALID_NAME;
    return false;
  }
  if (CreateDirectoryW(name.c_str(), access.attributes())) return true;
  m_lastError = lastError();
  if (m_lastError != ERROR_ALREADY_EXISTS) return false;
  // The name can be guessed; what somebody else has put there is not used, nor a link of his.
  bool exists = false;
  return belongsToUser(path) && isDirectory(path, exists);
}

bool Environment::setCurrentDirectory(const std::string& path) {
  if (SetCurrentDirectoryW(nativePath(path).c_str())) return true;
  m_lastError = lastError();
  return false;
}

std::string Environment::createTempFile(const std::string& content) {
  const std::string start = omGetTempDir() + "\\veldra-cm-" + std::to_string(processNumber()) + "-";
  std::string name;
  SystemHandle file;
  PrivateAccess access;
  do {
    name = start + randomEnding();
    file.reset(CreateFileW(nativePath(name).c_str(), GENERIC_WRITE, 0, access.attributes(),
                           CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY, nullptr));
    m_lastError = file ? 0 : lastError();
  } while (m_lastError == ERROR_FILE_EXISTS);
  if (m_lastError == 0) m_lastError = static_cast<int>(writeFully(file.get(), content));
  if (m_lastError == 0) return name;
  const bool isMade = static_cast<bool>(file);
  file.reset();
  if (isMade) removeFile(name);
  return {};
}

bool Environment::moveFile(const std::string& from, const std::string& to) {
  const std::wstring target = nativePath(to);
  if (target.empty() || windowsNameProblem(to)) {
    m_lastError = ERROR_INVALID_NAME;
    return false;
  }
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(target).parent_path(), error);
  // Without the flag to replace, a name that is taken makes this fail.
  m_lastError = error ? error.value()
                : MoveFileExW(nativePath(from).c_str(), target.c_str(),
                              MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH) != 0
                    ? 0
                    : lastError();
  return m_lastError == 0;
}

void Environment::removeFile(const std::string& path) {
  const std::wstring name = nativePath(path);
  if (DeleteFileW(name.c_str()) || GetLastError() != ERROR_ACCESS_DENIED) return;
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || isFolder(attributes)) return;
  SetFileAttributesW(name.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  DeleteFileW(name.c_str());
}

}  // namespace veldra::host
