#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/cli/Session.h"
#include "host/model/Rearrangement.h"

namespace veldra::host::cli {

/// Why a package that is a folder without a file cannot go as a whole: a provider knows files
/// alone, and a tool needs a template for directories. Nothing for every other unit.
std::optional<std::string> obstacleToFolder(const UnitCore& unit, const char* forDirectories);

/// The units that one command takes from their places: prepared before the tool works, and then
/// followed by the model as far as the tool did.
class Rearranging {
 public:
  using Plan = std::function<Result<Rearrangement>(UnitCore& unit)>;

  /// `isPlan`: nothing is written and nothing changes.
  Rearranging(Plan plan, bool isPlan) : m_plan(std::move(plan)), m_isPlan(isPlan) {}

  /// Nothing, or why the unit cannot take part.
  std::optional<std::string> admit(UnitCore& unit);
  /// The tool has done it for the unit of that file; the answer is the file that the unit has now,
  /// empty for one that is gone.
  std::string follow(const std::string& file);
  /// The tool failed for the unit of that file, or never came to it. The answer says what could not
  /// be put back; mostly it is empty.
  std::string takeBack(const std::string& file);
  /// Where the unit of a file was to come to; empty for nowhere.
  std::string targetOf(const std::string& file) const;

 private:
  Plan m_plan;
  bool m_isPlan;
  std::unordered_map<std::string, Rearrangement> m_planned;  ///< By the file before.
};

/// What the archive holds of a unit whose move or deletion failed: one sentence.
std::string archiveState(Session& session, const std::string& oldFile, const std::string& newFile);

}  // namespace veldra::host::cli
