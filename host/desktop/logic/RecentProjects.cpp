#include "host/desktop/logic/RecentProjects.h"

#include <utility>

namespace veldra::host::desktop {

RecentProjects::RecentProjects(std::vector<std::string> projects) {
  for (auto at = projects.rbegin(); at != projects.rend(); ++at) opened(*at);
}

void RecentProjects::opened(const std::string& project) {
  if (project.empty()) return;
  remove(project);
  m_projects.insert(m_projects.begin(), project);
  if (m_projects.size() > Most) m_projects.resize(Most);
}

void RecentProjects::remove(const std::string& project) {
  std::erase(m_projects, project);
}

}  // namespace veldra::host::desktop
