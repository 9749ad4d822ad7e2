#include "host/cli/Rearranging.h"

#include <algorithm>
#include <utility>

#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/ArchiveContent.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

std::string_view withoutSeparator(std::string_view path) {
  if (path.ends_with(HostSeparator)) path.remove_suffix(1);
  return path;
}

/// What a tool leaves where it deletes may never have been in the archive.
bool keepCopyOf(const std::string& file) {
  IKeptCopies* const copies = installedHost()->keptCopies();
  std::string reason;
  return copies == nullptr || copies->keep(file, "Delete", reason);
}

}  // namespace

std::optional<std::string> obstacleToFolder(const UnitCore& unit, const char* forDirectories) {
  if (unit.hasFile()) return std::nullopt;
  std::string command;
  if (CMProperty::useSccCompliantTool() == 0 &&
      CMProperty::getToolPropertyValue(forDirectories, command) && !command.empty()) {
    return std::nullopt;
  }
  return "It is a folder without a file of its own, which the tool cannot take as a whole. Name "
         "the "
         "units in it.";
}

std::optional<std::string> Rearranging::admit(UnitCore& unit) {
  Result<Rearrangement> planned = m_plan(unit);
  if (!planned) return planned.error();
  const std::string file = planned->oldFile();
  for (const auto& [otherFile, other] : m_planned) {
    if (other.takesAlong(file) || planned->takesAlong(otherFile)) {
      return "\"" + textForPeople(baseName(withoutSeparator(otherFile))) +
             "\", which is named, too, goes the same way. Name only the package.";
    }
  }
  if (!m_isPlan) {
    if (std::optional<std::string> reason = planned->prepare()) return reason;
  }
  m_planned.emplace(file, std::move(*planned));
  return std::nullopt;
}

std::string Rearranging::follow(const std::string& file) {
  const auto at = m_planned.find(file);
  if (m_isPlan || at == m_planned.end()) return file;
  at->second.carryOut(keepCopyOf);
  return at->second.newFile();
}

std::string Rearranging::takeBack(const std::string& file) {
  const auto at = m_planned.find(file);
  if (m_isPlan || at == m_planned.end()) return {};
  return at->second.takeBack().value_or(std::string());
}

std::string Rearranging::targetOf(const std::string& file) const {
  const auto at = m_planned.find(file);
  return at == m_planned.end() ? std::string() : at->second.newFile();
}

std::string archiveState(Session& session, const std::string& oldFile, const std::string& newFile) {
  const std::string& root = session.project().record().folder->path;
  const auto relative = [&root](const std::string& file) {
    std::string name = isInside(root, file) ? file.substr(root.size() + 1) : file;
    if (HostSeparator != '/') std::ranges::replace(name, HostSeparator, '/');
    return name;
  };
  const ArchiveContent content = listArchive(session);
  if (!content.failure.empty()) {
    return "The model and the disk are as before. The archive cannot be listed: look into it "
           "before "
           "you try again.";
  }
  std::string held;
  for (const std::string& file : {oldFile, newFile}) {
    const std::string name = file.empty() ? file : relative(file);
    const bool isFolder = name.ends_with('/');
    const bool isHeld = !name.empty() && std::ranges::any_of(content.files, [&](const auto& one) {
      return isFolder ? one.path.starts_with(name) : one.path == name;
    });
    if (isHeld) held += (held.empty() ? "" : " and ") + textForPeople(name);
  }
  return "The model and the disk are as before. The archive holds " +
         (held.empty() ? "no file of the unit." : held + ".");
}

}  // namespace veldra::host::cli
