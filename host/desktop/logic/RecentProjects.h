#pragma once

#include <string>
#include <vector>

namespace veldra::host::desktop {

/// The projects that were opened last, the newest first, each once.
class RecentProjects {
 public:
  static constexpr std::size_t Most = 8;

  RecentProjects() = default;
  explicit RecentProjects(std::vector<std::string> projects);

  void opened(const std::string& project);
  void remove(const std::string& project);
  const std::vector<std::string>& all() const { return m_projects; }

 private:
  std::vector<std::string> m_projects;
};

}  // namespace veldra::host::desktop
