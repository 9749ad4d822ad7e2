#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/model/KeptFiles.h"
#include "host/model/Project.h"
#include "host/platform/Result.h"

namespace veldra::host {

/// One unit that leaves its place: it is deleted, moved or renamed, a package that has a folder of
/// its own with everything in it.
///
/// It is planned, which changes nothing; prepared, which writes what has to be written before the
/// CM tool works; and then, after the tool, either carried out in the model or taken back. The
/// pointer to the unit must stay valid meanwhile.
class Rearrangement {
 public:
  /// `wholeFolder`: the tool deletes a package's folder as a whole.
  static Result<Rearrangement> planDelete(UnitCore& unit, bool wholeFolder);
  /// To the folder of another package or of the project itself.
  static Result<Rearrangement> planMove(UnitCore& unit, UnitCore& target);
  /// A unit in Veldra's own format gets the name in its content, too, and must be writable for
  /// that. For a file of any other type the name may have the extension or not.
  static Result<Rearrangement> planRename(UnitCore& unit, const std::string& name);

  UnitCore& unit() const { return *m_unit; }
  /// The unit's file in full, before and after; empty after a deletion. For a package that is a
  /// folder without a file it is that folder, with a separator at its end.
  const std::string& oldFile() const { return m_oldFile; }
  const std::string& newFile() const { return m_newFile; }

  /// Whether this takes the file along with a folder.
  bool takesAlong(const std::string& file) const;

  /// Nothing on success; otherwise why not, and everything is as it was.
  [[nodiscard]] std::optional<std::string> prepare();
  /// Told a file that the tool has left where it deleted, before that goes; false keeps it.
  using Farewell = std::function<bool(const std::string& file)>;
  /// The archive has it: model and disk follow.
  void carryOut(const Farewell& mayGo);
  /// The tool failed: model and disk are as they were. Nothing on success; otherwise what could not
  /// be put back.
  [[nodiscard]] std::optional<std::string> takeBack();

 private:
  explicit Rearrangement(UnitCore& unit);
  /// Why the unit has to stay where it is, whatever is wanted of it.
  std::optional<std::string> obstacle() const;
  std::optional<std::string> obstacleAt(const std::string& folder, const std::string& fileName);
  void moveOnDisk() const;
  void removeFromModel();

  UnitCore* m_unit;
  bool m_wholeFolder = false;
  std::string m_oldFile;
  std::string m_newFile;
  std::string m_oldName;
  std::string m_newName;  ///< For the content; empty when that stays.
  std::unique_ptr<KeptFiles> m_kept;
};

}  // namespace veldra::host
