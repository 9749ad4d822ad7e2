#pragma once

#include <optional>
#include <string>

#include "cm/host/Export.h"

namespace veldra {

/// The two directories that a comparison reads from: the model's or the first version's files, and
/// the archive's or the second version's.
struct ComparisonSides {
  std::string first;
  std::string second;
};

/// What the diff/merge tool is told beside its two files.
struct CompareFlags {
  bool recursive = false;  ///< Directories, with everything below them.
  bool mergeBack = false;  ///< What is merged goes back into the open project's first side.
  bool cm1 = false;        ///< The first side comes out of the archive's control.
  bool cm2 = false;        ///< The same for the second side.
};

/// Makes the two directories in the host's temporary directory, named by the local time. Nobody
/// removes them, because the tool goes on reading them; two calls within one second share them.
/// Nothing when one cannot be made; the user has then been told.
VELDRA_CM_EXPORT std::optional<ComparisonSides> makeComparisonSides();

/// The command line that starts the host's diff/merge tool on these files.
VELDRA_CM_EXPORT std::string comparisonCommand(const std::string& file1, const std::string& file2,
                                               const CompareFlags& flags);

/// Starts the tool and does not wait for it. False when a file is missing or empty, or the tool
/// cannot be started; the user has then been told. With `recursive` the names are directories,
/// which only have to exist.
VELDRA_CM_EXPORT bool launchComparison(const std::string& file1, const std::string& file2,
                                       const CompareFlags& flags);

}  // namespace veldra
