#include "tests/support/Journal.h"

#include <algorithm>

namespace veldra::test {

std::vector<std::string> Journal::only(const std::vector<std::string>& words) const {
  std::vector<std::string> found;
  for (const std::string& line : m_lines) {
    const std::string first = line.substr(0, line.find(' '));
    if (std::find(words.begin(), words.end(), first) != words.end()) found.push_back(line);
  }
  return found;
}

}  // namespace veldra::test
