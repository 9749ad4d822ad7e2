#pragma once

#include <string>
#include <vector>

namespace veldra::test {

/// What the parts of the in-memory host were asked to do, in one common order. A line begins with a
/// word for the event ("run", "header", "reload", ...) and names the file or text it was about.
class Journal {
 public:
  void add(std::string line) { m_lines.push_back(std::move(line)); }
  void clear() { m_lines.clear(); }
  const std::vector<std::string>& lines() const { return m_lines; }

  /// The lines whose first word is one of `words`.
  std::vector<std::string> only(const std::vector<std::string>& words) const;

 private:
  std::vector<std::string> m_lines;
};

}  // namespace veldra::test
