#include "host/compare/FolderComparison.h"

#include <filesystem>
#include <map>
#include <system_error>

#include "host/compare/FileComparison.h"

namespace veldra::host::compare {

namespace fs = std::filesystem;

namespace {

/// Which of the two folders have a file.
struct Presence {
  bool inFirst = false;
  bool inSecond = false;
};
using Names = std::map<std::string, Presence>;

template <class Iterator>
std::error_code addFiles(const std::string& folder, bool Presence::*side, Names& names) {
  std::error_code error;
  for (Iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code unknown;
    // A link is not followed: it may lead anywhere.
    if (!fs::is_regular_file(at->symlink_status(unknown))) continue;
    names[at->path().lexically_relative(folder).generic_string()].*side = true;
  }
  return error;
}

std::error_code addFiles(const std::string& folder, bool recursive, bool Presence::*side,
                         Names& names) {
  return recursive ? addFiles<fs::recursive_directory_iterator>(folder, side, names)
                   : addFiles<fs::directory_iterator>(folder, side, names);
}

FilePair::State stateOf(const FilePair& pair, std::string& problem) {
  const Result<FileComparison> comparison = FileComparison::read(pair.first, pair.second);
  if (!comparison) {
    problem = comparison.error();
    return FilePair::State::Unreadable;
  }
  return comparison->isSame() ? FilePair::State::Same : FilePair::State::Different;
}

}  // namespace

Result<std::vector<FilePair>> compareFolders(const std::string& first, const std::string& second,
                                             bool recursive) {
  Names names;
  for (const auto& [folder, side] :
       {std::pair(&first, &Presence::inFirst), std::pair(&second, &Presence::inSecond)}) {
    if (const std::error_code error = addFiles(*folder, recursive, side, names)) {
      return Result<std::vector<FilePair>>::failure("The folder '" + *folder +
                                                    "' cannot be read: " + error.message() + ".");
    }
  }
  std::vector<FilePair> pairs;
  for (const auto& [name, presence] : names) {
    FilePair pair{.name = name,
                  .first = (fs::path(first) / name).string(),
                  .second = (fs::path(second) / name).string()};
    pair.state = !presence.inSecond  ? FilePair::State::OnlyFirst
                 : !presence.inFirst ? FilePair::State::OnlySecond
                                     : stateOf(pair, pair.error);
    pairs.push_back(std::move(pair));
  }
  return pairs;
}

}  // namespace veldra::host::compare
