#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace veldra::test {

/// What the headers mark as visible from outside the module's library.
struct ExportMarks {
  std::set<std::string> classes;
  std::set<std::string> functions;
};

/// Reads the marks in the headers below a folder.
ExportMarks readExportMarks(const std::filesystem::path& folder);

/// The names that a shared library exports, demangled, without address and kind.
std::vector<std::string> exportedNames(const std::filesystem::path& library);

/// The exported names that belong to nothing that is marked.
std::vector<std::string> unmarkedNames(const std::vector<std::string>& names,
                                       const ExportMarks& marks);

/// The marks that none of the exported names belongs to.
std::vector<std::string> missingNames(const std::vector<std::string>& names,
                                      const ExportMarks& marks);

}  // namespace veldra::test
