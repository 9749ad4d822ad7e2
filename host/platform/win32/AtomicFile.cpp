#include <chrono>
#include <filesystem>

#include "host/platform/FileHead.h"
#include "host/platform/FileNames.h"
#include "host/platform/FileReplacement.h"
#include "host/platform/SystemError.h"
#include "host/platform/Temporaries.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

// Virus scanners and indexers open every new file for some moments; a program that keeps one open
// for longer is for the user to close.
constexpr int MostTries = 20;
constexpr DWORD MillisecondsBetweenTries = 50;

constexpr DWORD KeptAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                 FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

bool isInUse(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_USER_MAPPED_FILE;
}

std::string writeError(const std::string& path, DWORD error) {
  if (isInUse(error)) {
    return unwritten(path, "another program has it open. Close it there and try again");
  }
  return unwritten(path, systemErrorText(static_cast<int>(error)));
}

/// The file behind a link, in the system's form; the name itself when it is no link.
std::wstring targetOf(const std::wstring& name, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return name;
  return finalName(name);
}

/// A new file beside its target. It is removed again unless it has taken the target's name.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& directory) {
    do {
      m_path = (directory / nextTemporaryName()).native();
      m_file.reset(CreateFileW(m_path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
      m_error = m_file ? 0 : GetLastError();
    } while (m_error == ERROR_FILE_EXISTS);
    m_exists = m_error == 0;
  }
  ~TemporaryFile() {
    m_file.reset();
    if (!m_exists) return;
    SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(m_path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// The error number of the first step that failed, or 0.
  DWORD error() const { return m_error; }

  void fill(std::string_view bytes) {
    if (m_error == 0) m_error = writeFully(m_file.get(), bytes);
    if (m_error == 0) note(FlushFileBuffers(m_file.get()));
    m_file.reset();
  }

  /// `attributes` are those of the file that is replaced; INVALID_FILE_ATTRIBUTES when there is
  /// none.
  void rename(const std::wstring& target, DWORD attributes) {
    if (m_error != 0) return;
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    const bool isReadOnly = exists && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (exists && (attributes & KeptAttributes) != 0)
      note(SetFileAttributesW(m_path.c_str(), attributes & KeptAttributes));
    // The system replaces no file that is read-only.
    if (isReadOnly)
      SetFileAttributesW(target.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (m_error == 0) takeName(target);
    if (m_error != 0 && isReadOnly) SetFileAttributesW(target.c_str(), attributes);
  }

 private:
  void takeName(const std::wstring& target) {
    for (int i = 0; i < MostTries; ++i) {
      m_error = 0;
      note(MoveFileExW(m_path.c_str(), target.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
      m_exists = m_error != 0;
      if (m_error == ERROR_ACCESS_DENIED && isOpenElsewhere(target))
        m_error = ERROR_SHARING_VIOLATION;
      if (!isInUse(m_error)) return;
      Sleep(MillisecondsBetweenTries);
    }
  }

  /// The system words it as a missing right when the other program lets nobody delete the file.
  static bool isOpenElsewhere(const std::wstring& target) {
    const SystemHandle file(
        CreateFileW(target.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    return !file && isInUse(GetLastError());
  }

  void note(BOOL isDone) {
    if (!isDone && m_error == 0) m_error = GetLastError();
  }

  std::wstring m_path;
  SystemHandle m_file;
  DWORD m_error = 0;
  bool m_exists = false;
};

}  // namespace

std::optional<std::string> replaceFile(const std::string& path, std::string_view bytes,
                                       ReadOnlyFile readOnly) {
  if (auto problem = windowsNameProblem(path)) return problem;
  const std::wstring name = nativePath(path);
  if (name.empty()) return unwritten(path, "its name is not in UTF-8");
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    const PresentFile present = {.isDirectory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                                 .isReadOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0};
    if (auto reason = objection(path, present, readOnly)) return reason;
  }
  const std::wstring target =
      attributes == INVALID_FILE_ATTRIBUTES ? name : targetOf(name, attributes);
  if (target.empty()) return unwritten(path, "its links lead nowhere");
  TemporaryFile file(std::filesystem::path(target).parent_path());
  file.fill(bytes);
  file.rename(target, attributes);
  if (file.error() != 0) return writeError(path, file.error());
  return std::nullopt;
}

std::size_t restoreSetAside(const std::string& directory, const std::vector<std::string>& names,
                            std::chrono::seconds longestCommand) {
  const auto latest = std::chrono::duration_cast<std::chrono::nanoseconds>(
      (std::chrono::system_clock::now() - longestCommand).time_since_epoch());
  std::size_t restored = 0;
  for (const std::string& name : names) {
    const std::string path = directory + '\\' + name;
    const std::string aside = path + "_temp";
    const FileFacts facts = readFileFacts(aside);
    // Another name changes the time of the last change, and nothing else.
    const bool isOld = facts.state == FileHead::State::Readable && facts.changed < latest.count();
    // Without the permission to replace, so that nothing ever is.
    if (isOld && MoveFileExW(nativePath(aside).c_str(), nativePath(path).c_str(), 0) != 0) {
      ++restored;
    }
  }
  return restored;
}

}  // namespace veldra::host
