#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/live/Sandbox.h"

namespace veldra::live {

/// A CM tool, asked directly: what it says does not pass through the module.
class Tool {
 public:
  /// The archive is the folder of that name in the sandbox.
  Tool(const Sandbox& sandbox, std::string archive)
      : m_sandbox(sandbox), m_archive(sandbox.path(archive)) {}
  virtual ~Tool() = default;

  const std::string& archive() const { return m_archive; }

  /// The files of the archive, relative to it.
  virtual std::set<std::string> files() const = 0;
  virtual std::string newestText(const std::string& file) const = 0;
  virtual std::string newestComment(const std::string& file) const = 0;
  /// Who holds the file; empty when nobody does.
  virtual std::string holder(const std::string& file) const = 0;
  /// Makes a second folder of the project.
  virtual void makeWorkingCopy(const std::string& from, const std::string& to) const = 0;

 protected:
  std::string outputOf(const std::vector<std::string>& command) const;
  const Sandbox& sandbox() const { return m_sandbox; }

 private:
  const Sandbox& m_sandbox;
  std::string m_archive;
};

/// One of the tools of the tests by the name of its pack.
std::unique_ptr<Tool> makeTool(const std::string& pack, const Sandbox& sandbox);

/// The program whose absence lets a test of the pack be skipped.
std::string programOf(const std::string& pack);

}  // namespace veldra::live
