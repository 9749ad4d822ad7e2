#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/model/PathNames.h"
#include "host/model/ProjectLoader.h"
#include "host/model/PropertyLayers.h"
#include "host/platform/RealPath.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {

/// A project in a directory of its own, with as many files as the test puts into it.
class TempModel {
 public:
  TempModel() : m_root(realPath(m_directory.path())) {}

  const std::string& root() const { return m_root; }
  /// `relative` may hold slashes; the result has the system's separators.
  std::string path(const std::string& relative) const {
    return m_root + std::filesystem::path("/" + relative).make_preferred().string();
  }

  std::string put(const std::string& relative, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(path(relative)).parent_path());
    return m_directory.write(relative, bytes);
  }
  std::string read(const std::string& relative) const { return m_directory.read(relative); }

  /// A unit file as Veldra writes it, with `more` keys behind the fixed ones.
  static std::string unitText(const std::string& type, const std::string& name,
                              const std::string& more = {}) {
    return "// Veldra unit\n// $"
           "Id$\n{\n  \"format\": 1,\n  \"type\": \"" +
           type + "\",\n  \"name\": \"" + name + "\",\n  \"id\": \"0123\"" +
           (more.empty() ? "" : ",\n  " + more) + "\n}\n";
  }
  std::string putProject(const std::string& more = {}) const {
    return put("M.vdy", unitText("Project", "M", more));
  }
  std::string putUnit(const std::string& relative, const std::string& more = {}) const {
    const bool isPackage = relative.ends_with(".vpkg");
    return put(relative, unitText(isPackage ? "Package" : "Component",
                                  std::filesystem::path(relative).stem().string(), more));
  }

  /// Loads the project file, which must be readable.
  std::unique_ptr<Project> load() { return loadProject(path("M.vdy"), layers, error); }

  PropertyLayers layers;
  std::string error;

 private:
  TempDirectory m_directory;
  std::string m_root;
};

/// The problem of a file of that name, as one line; empty when there is none.
inline std::string problemOf(const Project& project, const std::string& file) {
  for (const Problem& problem : project.problems()) {
    if (baseName(problem.file) == file) return sentence(problem);
  }
  return {};
}

inline std::string allProblems(const Project& project) {
  std::string lines;
  for (const Problem& problem : project.problems()) lines += sentence(problem) + "\n";
  return lines;
}

}  // namespace veldra::host
