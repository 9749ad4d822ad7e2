#include "host/kept/ProjectRecords.h"

#include <filesystem>
#include <system_error>

#include "host/model/FolderScan.h"
#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t CommentLimit = std::size_t{64} << 20;

std::string commentFile(const std::string& projectFolder) {
  return joinPath(recordsFolder(projectFolder), "last-comment");
}

}  // namespace

std::string recordsFolder(const std::string& projectFolder) {
  return joinPath(projectFolder, WorkingFilePrefix);
}

std::optional<std::string> makeRecordsFolder(const std::string& projectFolder) {
  const std::string folder = recordsFolder(projectFolder);
  std::error_code failed;
  if (!fs::create_directories(folder, failed)) {
    if (!failed) return std::nullopt;
    return "The folder " + folder + " cannot be made: " + failed.message() + ".";
  }
  return writeFileAtomically(joinPath(folder, ".gitignore"), "*\n");
}

std::string lastComment(const std::string& projectFolder) {
  const Result<std::string> text = readFile(commentFile(projectFolder), CommentLimit);
  return text ? *text : std::string();
}

std::optional<std::string> rememberComment(const std::string& projectFolder,
                                           const std::string& comment) {
  if (comment.empty()) {
    std::error_code failed;
    fs::remove(commentFile(projectFolder), failed);
    return std::nullopt;
  }
  if (std::optional<std::string> failure = makeRecordsFolder(projectFolder)) return failure;
  return writeFileAtomically(commentFile(projectFolder), comment);
}

}  // namespace veldra::host
