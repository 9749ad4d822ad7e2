#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "cm/core/CMArgument.h"
#include "cm/host/IUnit.h"
#include "host/ReferenceHost.h"

namespace veldra::bench {

/// A temporary folder that goes with this object.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();
  const std::filesystem::path& path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

void writeFile(const std::filesystem::path& file, const std::string& text);

/// Writes `count` unit files, a hundred to a package, and the project file of Subversion's pack.
void writeModel(const std::filesystem::path& folder, std::size_t count);

/// An open project of the reference host, whose tool runs `program` for every operation.
class BenchProject {
 public:
  BenchProject(std::size_t unitCount, const std::string& program);
  BenchProject(const BenchProject&) = delete;
  BenchProject& operator=(const BenchProject&) = delete;
  ~BenchProject();

  /// The components of the model.
  UnitList units(std::size_t count) const;
  const std::filesystem::path& folder() const { return m_folder.path(); }

 private:
  TempFolder m_folder;
  std::ofstream m_window;  ///< The CM output window; nobody looks at it.
  std::unique_ptr<host::ReferenceHost> m_host;
};

/// This program's own file.
std::string ownProgram();

/// `veldra-cm` beside it, quoted for a shell.
std::string commandLineProgram();

/// Runs a command of the shell, which must succeed; its output is thrown away.
void runQuietly(const std::string& command);

/// The bytes that this process has in memory now, and the most it ever had.
std::size_t residentBytes();
std::size_t peakResidentBytes();

}  // namespace veldra::bench
