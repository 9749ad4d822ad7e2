#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/live/Sandbox.h"

namespace veldra::live {

/// What users of a tool see of it.
struct ToolTraits {
  const char* pack;        ///< Its name, or what stands in its place.
  const char* program;     ///< Its absence lets a test of the pack be skipped.
  const char* noLocks;     ///< Why nobody is kept out; null where a check-out does.
  const char* noKeywords;  ///< Why a file does not tell its version; null where it does.
  const char* noTrail;     ///< Why a moved file leaves its history; null where that follows.
  const char* outOfDate;   ///< What a check-in on top of somebody's newer one is told.
  const char* noVersions = nullptr;     ///< Why a listing tells none; null where it does.
  const char* noLabels = nullptr;       ///< Why there are none; null where there are.
  const char* noLockCommand = nullptr;  ///< Why only a check-out locks; null where a command does.
  const char* ownProperties = nullptr;  ///< What its own words say of a file that alice has out.
};

/// A CM tool, asked directly: what it says does not pass through the module.
class Tool {
 public:
  /// The archive is the folder of that name in the sandbox.
  Tool(const Sandbox& sandbox, const std::string& archive)
      : m_sandbox(sandbox), m_archive(sandbox.path(archive)) {}
  virtual ~Tool() = default;

  virtual const ToolTraits& traits() const = 0;
  const std::string& archive() const { return m_archive; }

  /// The commands of `veldra-cm` that put the folder "model" under its control, with the archive at
  /// an address.
  virtual std::vector<std::vector<std::string>> setUp(const std::string& address) const {
    return {{"init", "model", "--name", "Machine", "--tool", traits().pack, "--archive", address}};
  }
  /// The folder of the sandbox that is a user's home.
  virtual std::string homeOf(const std::string& /*user*/) const { return "home"; }
  /// Lets a user in to the archive at an address for good, where nobody is asked for a password.
  virtual void letIn(const std::string& /*user*/, const std::string& /*address*/) const {}

  /// Makes the archive, as an administrator does on a server.
  virtual void makeArchive() const = 0;
  /// Makes a second folder of the project, with the tool alone.
  virtual void checkOut(const std::string& address, const std::string& to) const = 0;
  void makeWorkingCopy(const std::string& /*from*/, const std::string& to) const {
    checkOut(m_archive, to);
  }
  /// The files of the archive, relative to it.
  virtual std::set<std::string> files() const = 0;
  virtual std::string newestText(const std::string& file) const = 0;
  virtual std::string textAt(const std::string& label, const std::string& file) const = 0;
  virtual std::string newestComment(const std::string& file) const = 0;
  /// What the tool makes of a comment.
  virtual std::string kept(const std::string& comment) const = 0;
  /// Who holds the file; empty when nobody does.
  virtual std::string holder(const std::string& /*file*/) const { return {}; }

 protected:
  std::string outputOf(const std::vector<std::string>& command) const {
    return m_sandbox.run(command).out;
  }
  const Sandbox& sandbox() const { return m_sandbox; }

 private:
  const Sandbox& m_sandbox;
  std::string m_archive;
};

/// One of the tools of the tests by the name of its pack, or of what stands in its place.
std::unique_ptr<Tool> makeTool(const std::string& pack, const Sandbox& sandbox);

/// The program whose absence lets a test of the pack be skipped.
std::string programOf(const std::string& pack);

/// What stands between two texts; empty without the first.
std::string between(const std::string& text, const std::string& before, const std::string& after);

/// The pieces of a text that each end with a character.
std::set<std::string> pieces(const std::string& text, char end);

std::unique_ptr<Tool> makeSubversion(const Sandbox& sandbox);
std::unique_ptr<Tool> makeSubversionProvider(const Sandbox& sandbox);
std::unique_ptr<Tool> makeRcs(const Sandbox& sandbox);
std::unique_ptr<Tool> makeCvs(const Sandbox& sandbox);
std::unique_ptr<Tool> makeGit(const Sandbox& sandbox);
std::unique_ptr<Tool> makeMercurial(const Sandbox& sandbox);

}  // namespace veldra::live
