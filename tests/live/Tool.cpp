#include "tests/live/Tool.h"

#include <filesystem>
#include <sstream>

namespace veldra::live {

namespace fs = std::filesystem;

namespace {

std::string between(const std::string& text, const std::string& before, const std::string& after) {
  const std::size_t found = text.find(before);
  if (found == std::string::npos) return {};
  const std::size_t from = found + before.size();
  return text.substr(from, text.find(after, from) - from);
}

class Subversion : public Tool {
 public:
  using Tool::Tool;

  std::set<std::string> files() const override {
    std::istringstream lines(outputOf({"svn", "ls", "-R", url()}));
    std::set<std::string> result;
    for (std::string line; std::getline(lines, line);) {
      if (!line.ends_with('/')) result.insert(line);
    }
    return result;
  }

  std::string newestText(const std::string& file) const override {
    return outputOf({"svn", "cat", url(file)});
  }

  std::string newestComment(const std::string& file) const override {
    const std::string revision =
        between(outputOf({"svn", "log", "--xml", "-l", "1", url(file)}), "revision=\"", "\"");
    return outputOf(
        {"svn", "propget", "--no-newline", "--revprop", "-r", revision, "svn:log", url()});
  }

  std::string holder(const std::string& file) const override {
    return between(outputOf({"svn", "info", url(file)}), "Lock Owner: ", "\n");
  }

  void makeWorkingCopy(const std::string& /*from*/, const std::string& to) const override {
    outputOf({"svn", "checkout", "-q", url(), sandbox().path(to)});
  }

 private:
  std::string url(const std::string& file = {}) const {
    return "file://" + archive() + (file.empty() ? "" : "/" + file + "@");
  }
};

class Rcs : public Tool {
 public:
  using Tool::Tool;

  std::set<std::string> files() const override {
    std::set<std::string> result;
    for (const auto& entry : fs::recursive_directory_iterator(archive())) {
      std::string name = fs::relative(entry.path(), archive()).string();
      if (!entry.is_regular_file() || !name.ends_with(",v")) continue;
      if (name.find("RCS/Attic/") != std::string::npos) continue;
      name.erase(name.rfind("RCS/"), 4);
      result.insert(name.substr(0, name.size() - 2));
    }
    return result;
  }

  std::string newestText(const std::string& file) const override {
    return outputOf({"co", "-q", "-p", history(file)});
  }

  std::string newestComment(const std::string& file) const override {
    const std::string log = outputOf({"rlog", "-r", history(file)});
    const std::size_t date = log.rfind("\ndate: ");
    const std::size_t from = log.find('\n', date + 1) + 1;
    return log.substr(from, log.rfind("\n=====") + 1 - from);
  }

  std::string holder(const std::string& file) const override {
    const std::string locks = between(outputOf({"rlog", "-h", history(file)}), "locks:", "access");
    return between(locks, "\n\t", ":");
  }

  void makeWorkingCopy(const std::string& from, const std::string& to) const override {
    fs::copy(sandbox().path(from), sandbox().path(to), fs::copy_options::recursive);
  }

 private:
  std::string history(const std::string& file) const {
    const fs::path path = archive() + "/" + file;
    return (path.parent_path() / "RCS" / path.filename()).string() + ",v";
  }
};

}  // namespace

std::string Tool::outputOf(const std::vector<std::string>& command) const {
  return m_sandbox.run(command).out;
}

std::unique_ptr<Tool> makeTool(const std::string& pack, const Sandbox& sandbox) {
  if (pack == "RCS") return std::make_unique<Rcs>(sandbox, "archive");
  return std::make_unique<Subversion>(sandbox, "archive");
}

std::string programOf(const std::string& pack) {
  return pack == "RCS" ? "rlog" : "svn";
}

}  // namespace veldra::live
