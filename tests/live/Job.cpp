#include "tests/live/Job.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veldra::live {

Job::Job(const std::string& pack) : m_tool(makeTool(pack, m_sandbox)) {
  become("alice", "model");
}

void Job::become(const std::string& user, const std::string& folder) {
  m_sandbox.become(user);
  m_sandbox.set("HOME", m_sandbox.path(m_tool->homeOf(user)));
  m_folder = folder;
  if (!m_address.empty()) m_tool->letIn(user, m_address);
}

void Job::makeProject(const std::string& address) {
  m_sandbox.copySample("model");
  m_sandbox.write("model/docs/LICENSE", "no dot in the name");
  m_address = address;
  become("alice", m_folder);
  for (const std::vector<std::string>& command : m_tool->setUp(address)) {
    const Ended ended = m_sandbox.cm(command);
    EXPECT_EQ(ended.code, 0) << testing::PrintToString(command) << ended.err;
  }
  // The last command may have made the archive.
  m_tool->letIn("alice", address);
}

Ended Job::tryCm(std::vector<std::string> arguments, const std::string& input) {
  arguments.insert(arguments.begin(), {"-p", m_folder});
  return m_sandbox.cm(arguments, input);
}

Ended Job::cm(std::vector<std::string> arguments, const std::string& input) {
  Ended ended = tryCm(arguments, input);
  EXPECT_EQ(ended.code, 0) << testing::PrintToString(arguments) << ended.err.substr(0, 2000);
  return ended;
}

nlohmann::json Job::document(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "--json");
  return nlohmann::json::parse(cm(arguments).out);
}

nlohmann::json Job::unitOf(const nlohmann::json& document, const std::string& path) {
  for (const nlohmann::json& unit : document["units"]) {
    if (unit["path"] == path) return unit;
  }
  return nullptr;
}

std::set<std::string> Job::pathsOf(const nlohmann::json& document) {
  std::set<std::string> paths;
  for (const nlohmann::json& unit : document["units"]) paths.insert(unit["path"]);
  return paths;
}

std::set<std::string> Job::files() const {
  std::set<std::string> names;
  for (const auto& [name, state] : m_sandbox.files(m_folder)) {
    const bool isRecord = name.starts_with('.') || ("/" + name).find("/CVS/") != std::string::npos;
    if (!isRecord) names.insert(name);
  }
  return names;
}

void Job::change(const std::string& file, const std::string& from, const std::string& to) {
  std::string text = read(file);
  const std::size_t at = text.find(from);
  ASSERT_NE(at, std::string::npos) << file;
  m_sandbox.write(m_folder + "/" + file, text.replace(at, from.size(), to));
}

}  // namespace veldra::live
