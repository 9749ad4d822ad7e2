#include "host/model/ModelFileHandler.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/FileTypes.h"
#include "host/model/FolderScan.h"
#include "host/model/ModelText.h"
#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/RemoveTree.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

std::string copyNameOf(const std::string& file) {
  return joinPath(parentPath(file),
                  std::string(WorkingFilePrefix) + "-kept-" + std::string(baseName(file)));
}

bool isFile(const std::string& path) {
  std::error_code unknown;
  return fs::is_regular_file(path, unknown);
}

}  // namespace

ModelFileHandler::ModelFileHandler(std::string fullFileName)
    : m_file(std::move(fullFileName)),
      m_copy(copyNameOf(m_file)),
      m_isProjectFile(FileTypes::isProjectFile(m_file)) {}

ModelFileHandler::~ModelFileHandler() {
  if (m_prepared) restore();
}

void ModelFileHandler::prepare(Kind kind) {
  (void)kind;  // The copy serves check-out, check-in and fetch alike.
  if (!m_isProjectFile || m_prepared || !isFile(m_file)) return;
  std::error_code failed;
  // A copy from a run that died is somebody's work: it is not overwritten.
  if (fs::exists(fs::symlink_status(m_copy, failed))) return;
  // Half a copy, after a kill or on a full disk, would pass for what the file was before.
  const Result<std::string> bytes = readFile(m_file, ModelFileLimit);
  if (!bytes || writeFileAtomically(m_copy, *bytes)) return;
  fs::permissions(m_copy, fs::status(m_file, failed).permissions(), failed);
  m_prepared = true;
}

void ModelFileHandler::complete() {
  if (!m_prepared) return;
  m_prepared = false;
  std::error_code failed;
  removeEntry(m_copy, failed);
}

void ModelFileHandler::restore() noexcept {
  try {
    const Result<std::string> kept = readFile(m_copy, ModelFileLimit);
    if (!kept) return;
    const Result<std::string> present = readFile(m_file, ModelFileLimit);
    const bool same = present && *present == *kept;
    // The copy stays when the file cannot be put back.
    if (!same && writeFileAtomically(m_file, *kept, ReadOnlyFile::Replace)) return;
    std::error_code failed;
    fs::permissions(m_file, fs::status(m_copy, failed).permissions(), failed);
    removeEntry(m_copy, failed);
  } catch (...) {
    // Runs in a destructor; the copy is still there and is reported when the project is opened.
  }
}

std::string ModelFileHandler::withExtension(const char* extension) const {
  if (!m_isProjectFile) return {};
  return joinPath(parentPath(m_file), std::string(stemOf(baseName(m_file))) + extension);
}

std::string ModelFileHandler::oldFileName() const {
  return withExtension(FileExtension::OldProject);
}

std::string ModelFileHandler::newFileName() const {
  return withExtension(FileExtension::Project);
}

std::string ModelFileHandler::fileNameToLoad() const {
  return isFile(newFileName()) || !isFile(oldFileName()) ? newFileName() : oldFileName();
}

std::optional<Problem> leftBehindCopy(const std::string& projectFile) {
  const std::string copy = copyNameOf(projectFile);
  if (!isFile(copy)) return std::nullopt;
  const Result<std::string> before = readFile(copy, ModelFileLimit);
  const Result<std::string> now = readFile(projectFile, ModelFileLimit);
  if (before && now && *before == *now) {
    // Nothing had happened to the file yet.
    std::error_code failed;
    removeEntry(copy, failed);
    return std::nullopt;
  }
  return Problem{
      copy, "A command on the project file was interrupted; this is how the file was before.",
      "Compare the two, keep the better one under the project's name, and remove the copy."};
}

}  // namespace veldra::host
