#include "host/platform/AtomicFile.h"

#include <exception>

#include "host/platform/FileReplacement.h"

namespace veldra::host {

std::string unwritten(const std::string& path, std::string_view reason) {
  std::string sentence = "'" + path + "' could not be written: ";
  return sentence.append(reason).append(".");
}

std::optional<std::string> objection(const std::string& path, PresentFile present,
                                     ReadOnlyFile readOnly) {
  if (present.isDirectory) return "'" + path + "' is a directory, not a file.";
  if (!present.isRegular) return "'" + path + "' is not a regular file and is left as it is.";
  if (present.isReadOnly && readOnly == ReadOnlyFile::Refuse) {
    return "'" + path +
           "' is read-only. Check it out, or give its owner the permission to write it.";
  }
  return std::nullopt;
}

std::optional<std::string> writeFileAtomically(const std::string& path, std::string_view bytes,
                                               ReadOnlyFile readOnly) {
  if (path.empty()) return unwritten(path, "it has no name");
  if (path.find('\0') != std::string::npos) return unwritten(path, "its name has a NUL byte");
  try {
    return replaceFile(path, bytes, readOnly);
  } catch (const std::exception& problem) {
    return unwritten(path, problem.what());
  }
}

}  // namespace veldra::host
