#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veldra {

/// Files, settings and the surroundings of the process. Every host has one.
class IEnvironment {
 public:
  virtual ~IEnvironment() = default;

  /// The installation root, below which `packs` lies. Returns 1 when it is known.
  virtual int omGetRoot(std::string& root) = 0;
  /// A host setting. Returns 1 and fills `value` when it exists; otherwise 0 and the default.
  virtual int omGetEnvVar(const std::string& section, const std::string& name, std::string& value,
                          const std::string& defaultValue) = 0;

  /// The directory for temporary files, without a separator at its end.
  virtual std::string omGetTempDir() = 0;
  /// What stands between the directories of a local path.
  virtual char omPathSeparator() const = 0;
  /// Whether the path names the same file from whichever directory.
  virtual bool omIsAbsolutePath(const std::string& path) = 0;

  /// The time, the date and the user as the host writes them for people.
  virtual std::string omGetCurrentTime() = 0;
  virtual std::string omGetCurrentDate() = 0;
  virtual std::string omGetCurrentUser() = 0;

  /// Whether the path names anything that is there.
  virtual bool omFileExist(const std::string& path) = 0;
  /// True for a file that holds at least one byte. A host that cannot tell says no.
  virtual bool omFileExistsAndNonEmpty(const std::string& path) {
    (void)path;
    return false;
  }
  /// True when the file's owner may write it (the mode bit, or on Windows no read-only attribute);
  /// what the current user could do plays no part.
  virtual bool omFileHasWritePermission(const std::string& path) = 0;
  /// When the content of a file was last written, in nanoseconds since 1970. Nothing for a file
  /// that does not exist, and from a host that does not know.
  virtual std::optional<std::int64_t> omGetFileTime(const std::string& path) {
    (void)path;
    return std::nullopt;
  }
  /// True when the path names an existing directory; `exists` tells whether it names anything.
  virtual bool isDirectory(const std::string& path, bool& exists) = 0;

  /// The absolute name of a directory; the empty path means the current one. Empty, with the reason
  /// in `errorText`, when it cannot be had.
  virtual std::string omGetFullPathOfDirectory(const std::string& path, std::string& errorText) = 0;
  /// Makes one directory, for the current user alone. True as well when it is there already and
  /// belongs to this user; false when that fails, the directory above is missing, or the name is
  /// taken by anything else.
  virtual bool createDirectory(const std::string& path) {
    (void)path;
    return false;
  }
  /// Makes the directory the current one of the process. False, and nothing changed, when it cannot
  /// be entered.
  virtual bool setCurrentDirectory(const std::string& path) = 0;
  /// The system's words for the error of the last call above that failed.
  virtual std::string omGetErrorCodeString() = 0;

  /// Writes a new private file with these very bytes into the temporary directory. Its name
  /// contains no blank beyond those of that directory. Empty when it could not be written.
  virtual std::string createTempFile(const std::string& content) = 0;
  /// A file that is not there, or cannot be removed, is no error.
  virtual void removeFile(const std::string& path) = 0;
  /// Gives a file another name or place, on another volume too, and makes the directories that it
  /// needs. False, and nothing changed, when that fails or something has the new name already.
  virtual bool moveFile(const std::string& from, const std::string& to) = 0;
};

// The same as free functions, for the module's own use. Without a host they answer as for things
// that do not exist.
int omGetRoot(std::string& root);
int omGetEnvVar(const std::string& section, const std::string& name, std::string& value,
                const std::string& defaultValue);
char omPathSeparator();
bool omIsAbsolutePath(const std::string& path);
std::string omGetTempDir();
std::string omGetCurrentTime();
std::string omGetCurrentDate();
std::string omGetCurrentUser();
bool omFileExist(const std::string& path);
bool omFileExistsAndNonEmpty(const std::string& path);
bool omFileHasWritePermission(const std::string& path);
std::optional<std::int64_t> omGetFileTime(const std::string& path);
std::string omGetFullPathOfDirectory(const std::string& path, std::string& errorText);
std::string omGetErrorCodeString();

/// Splits a full file name into the directory with the separator at its end, the bare name, and the
/// extension with its dot. What the name does not have is empty. Either separator counts.
void ParseToDirFileNameAndExtension(const std::string& path, std::string& directory,
                                    std::string& fileName, std::string& extension);

}  // namespace veldra
