#pragma once

#include <string>
#include <vector>

#include "cm/core/UnitBatch.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

/// Gives one file another name in the archive and on the disk, so that both stay in step: what one
/// of them refuses is taken back in the other. A file that the archive does not have is moved on
/// the disk alone. One that the user has checked out is checked in at its new place, with its
/// changes and the comment, as command-line tools do it; the others take no comment along, which
/// the user is told. Names are full names. False, with the user told and the report ended, when the
/// file keeps its name.
bool moveMember(const pvContextStruct& context, const std::string& from, const std::string& to,
                const std::string& comment, UnitReport& report);

/// A directory that gets another name or place.
struct DirectoryMove {
  std::string from;
  std::string to;
  std::vector<std::string> files;  ///< The module's files in it, by their names before.
  std::string renamed{};           ///< The one of them that gets another name, too; mostly none.
  std::string newName{};           ///< What that one is called in the end.
};

/// The same for a directory: as a whole where the provider knows it, otherwise file by file. Where
/// one of the files has to stay, all of them do.
bool moveDirectory(const pvContextStruct& context, const DirectoryMove& move,
                   const std::string& comment, UnitReport& report);

/// The name of a file below one directory as it is below another.
std::string rebased(const std::string& file, const std::string& from, const std::string& to);

}  // namespace veldra
