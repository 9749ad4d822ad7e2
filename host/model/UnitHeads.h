#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/FileTypes.h"
#include "host/model/Problem.h"
#include "host/platform/FileHead.h"

namespace veldra::host {

/// The permission of a unit's file, or that there is no file to ask.
enum class FileMode { Unknown, ReadOnly, ReadWrite };

/// From the owner's mode bit; unknown for a file that is not there.
FileMode modeOf(const FileFacts& facts);

/// A file whose head is wanted. The views must live until the heads are read.
struct HeadRequest {
  std::string_view directory;
  std::string_view fileName;
  const FileType* type = nullptr;  ///< Null for a file of any other type.
};

/// What loading takes from a unit's file without parsing it.
struct UnitHead {
  FileMode mode = FileMode::Unknown;
  FileFacts facts;
  bool isOwn = false;               ///< A file of Veldra's own format, so that its text was read.
  bool remembered = false;          ///< From the cache; the file was not opened.
  std::string header;               ///< The CM header.
  std::string unitType;             ///< As the file says; empty for files of other tools.
  std::string name;                 ///< As the file says; empty for files of other tools.
  bool mentionsControlled = false;  ///< The body may list controlled files.
  bool mentionsProperties = false;  ///< The body may hold properties.
  std::optional<Problem> problem;
};

/// Looks at one file.
UnitHead readUnitHead(const std::string& path, const FileType* type);

/// Below this number of files, neither a second thread nor a memory of earlier heads saves time.
constexpr std::size_t ManyHeads = 256;

class HeadCache;

/// Looks at many files, in two threads when there are enough of them. The answers stand in the
/// order of the requests. A file that the cache knows is not opened.
std::vector<UnitHead> readUnitHeads(const std::vector<HeadRequest>& requests,
                                    const HeadCache& cache);

}  // namespace veldra::host
