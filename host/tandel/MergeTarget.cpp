#include "host/tandel/MergeTarget.h"

#include <filesystem>
#include <vector>

#include "host/model/CMHeader.h"
#include "host/model/ModelText.h"
#include "host/model/RememberedProjects.h"
#include "host/model/UnitCore.h"
#include "host/platform/AtomicFile.h"
#include "host/resources/MessageNumbers.h"

namespace veldra::host::tandel {

namespace {

/// The identifier that a model file holds; empty for any other file.
std::string identifierIn(const std::string& file) {
  const Result<std::string> bytes = readFile(file, ModelFileLimit);
  Problem problem;
  const std::optional<ModelText> text = bytes ? parseModelText(*bytes, problem) : std::nullopt;
  const Json* const id = text ? member(text->body, "id") : nullptr;
  return id != nullptr && id->is_string() ? id->get<std::string>() : std::string();
}

}  // namespace

MergeTarget::MergeTarget(ReferenceHost& host, const std::string& projectIdentifier) : m_host(host) {
  const std::string project = rememberedProject(projectIdentifier);
  if (project.empty()) {
    m_problem = host.catalogue().text(MessageNumber::MergeProjectUnknown);
  } else if (const std::optional<std::string> reason = host.open(project)) {
    m_problem = *reason;
  }
}

Result<std::string> MergeTarget::fileOf(const std::string& firstSide) {
  if (!m_problem.empty()) return Result<std::string>::failure(m_problem);
  const std::string identifier = identifierIn(firstSide);
  const std::string name = std::filesystem::path(firstSide).filename().string();
  std::vector<std::string> found;
  for (const UnitCore* unit : m_host.project()->files()) {
    if (unit->record().fileName != name) continue;
    const std::string file = unit->fullFileName();
    if (identifier.empty() || identifierIn(file) == identifier) found.push_back(file);
  }
  if (found.size() == 1) return found.front();
  return Result<std::string>::failure(
      m_host.catalogue().format(MessageNumber::MergeUnitUnknown, {name}));
}

bool MergeTarget::isAsExpected(const std::string& file, const std::string& firstSide) const {
  const Result<std::string> present = readFile(file, ModelFileLimit);
  if (!present) return false;
  const auto written = m_written.find(file);
  if (written != m_written.end()) return *present == written->second;
  const Result<std::string> compared = readFile(firstSide, ModelFileLimit);
  return compared && withoutExpansions(*present) == withoutExpansions(*compared);
}

std::optional<std::string> MergeTarget::write(const std::string& file, const std::string& bytes) {
  std::string reason;
  if (!m_host.kept().keep(file, "merge", reason)) return reason;
  std::optional<std::string> error = writeFileAtomically(file, bytes);
  m_host.kept().settle(file);
  if (!error) m_written[file] = bytes;
  return error;
}

std::optional<std::string> writeWithCopy(const std::string& file, const std::string& bytes) {
  std::error_code error;
  std::filesystem::copy_file(file, file + ".orig", error);
  if (error && error != std::errc::file_exists) {
    return "No copy of '" + file + "' can be kept: " + error.message() + ".";
  }
  return writeFileAtomically(file, bytes);
}

}  // namespace veldra::host::tandel
