#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "tests/live/Tool.h"

namespace veldra::live {

/// A project under the control of one tool, in a sandbox of its own.
class Job {
 public:
  explicit Job(const std::string& pack);

  Sandbox& sandbox() { return m_sandbox; }
  const Tool& tool() const { return *m_tool; }

  /// From now on commands are about this folder's project, in this user's name.
  void become(const std::string& user, const std::string& folder);

  /// Makes the project "Machine" of the sample in "model", with the archive at an address.
  void makeProject(const std::string& address);

  /// Runs `veldra-cm` on the project; it has to succeed.
  Ended cm(std::vector<std::string> arguments, const std::string& input = {});
  /// The same without any demand.
  Ended tryCm(std::vector<std::string> arguments, const std::string& input = {});
  nlohmann::json document(std::vector<std::string> arguments);

  /// The entry of a unit in a document, or null.
  static nlohmann::json unitOf(const nlohmann::json& document, const std::string& path);
  static std::set<std::string> pathsOf(const nlohmann::json& document);

  /// The project's files that are its own, not the tool's.
  std::set<std::string> files() const;
  std::string read(const std::string& file) const { return m_sandbox.read(m_folder + "/" + file); }
  bool isWritable(const std::string& file) const {
    return m_sandbox.isWritable(m_folder + "/" + file);
  }
  /// Replaces a text in a file, which has to be there.
  void change(const std::string& file, const std::string& from, const std::string& to);

 private:
  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool;
  std::string m_folder = "model";
  std::string m_address;
};

}  // namespace veldra::live
