#include "cm/ui/logic/compare/CompareLaunch.h"

#include <array>
#include <ctime>

#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/HostTexts.h"

namespace veldra {

namespace {

constexpr char Tool[] = "Tandel.exe";

/// Without the number of the side at its end.
std::string sideName() {
  const std::time_t now = std::time(nullptr);
  // The local time is asked on the user-interface thread alone.
  const std::tm time = *std::localtime(&now);  // NOLINT(concurrency-mt-unsafe)
  std::array<char, 64> name{};
  const std::size_t length = std::strftime(name.data(), name.size(), "_tmp%Y_%j_%H_%M_%S_", &time);
  return joinPath(omGetTempDir(), std::string_view(name.data(), length));
}

bool makeSide(const std::string& directory) {
  Host* const host = installedHost();
  if (host != nullptr && host->environment().createDirectory(directory)) return true;
  dialogError(formatMessage(MessageId::SideNotMade, {directory}));
  return false;
}

std::string projectIdentifier() {
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  return project != nullptr ? replaceAll(project->getVdId(), " ", "_") : std::string();
}

bool isThere(const std::string& path, bool directory) {
  bool exists = false;
  Host* const host = installedHost();
  if (omFileExistsAndNonEmpty(path) ||
      (directory && host != nullptr && host->environment().isDirectory(path, exists))) {
    return true;
  }
  dialogError(formatMessage(MessageId::NothingToCompare, {path}));
  return false;
}

}  // namespace

std::optional<ComparisonSides> makeComparisonSides() {
  const std::string name = sideName();
  ComparisonSides sides{name + '1', name + '2'};
  if (!makeSide(sides.first) || !makeSide(sides.second)) return std::nullopt;
  return sides;
}

std::string comparisonCommand(const std::string& file1, const std::string& file2,
                              const CompareFlags& flags) {
  std::string command = std::string(Tool) + " \"" + file1 + "\" \"" + file2 + "\" -fromVeldra";
  if (flags.recursive) command += " -recursive";
  if (flags.mergeBack) command += " -mergeBack -origId " + projectIdentifier();
  // The blanks behind these are part of the command line that the tool knows.
  if (flags.cm1) command += " -cm1 ";
  if (flags.cm2) command += " -cm2 ";
  return command;
}

bool launchComparison(const std::string& file1, const std::string& file2,
                      const CompareFlags& flags) {
  if (!isThere(file1, flags.recursive) || !isThere(file2, flags.recursive)) return false;
  Host* const host = installedHost();
  IProcesses* const processes = host != nullptr ? host->processes() : nullptr;
  const std::string command = comparisonCommand(file1, file2, flags);
  if (processes != nullptr && processes->startDetached(command)) return true;
  dialogError(formatMessage(MessageId::CompareToolNotStarted, {Tool}));
  return false;
}

}  // namespace veldra
