#include <algorithm>

#include "tests/live/Tool.h"

namespace veldra::live {

namespace {

class GitTool : public Tool {
 public:
  using Tool::Tool;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{.pack = "Git",
                                       .program = "git",
                                       .noLocks = "a plain Git server has no locks",
                                       .noKeywords = "Git expands no keywords by itself",
                                       .noTrail = nullptr,
                                       .outOfDate = "Fetch first"};
    return traits;
  }

  void makeArchive() const override { outputOf({"git", "init", "-q", "--bare", archive()}); }

  void checkOut(const std::string& address, const std::string& to) const override {
    outputOf({"git", "clone", "-q", address, to});
  }

  std::set<std::string> files() const override {
    return pieces(git({"ls-tree", "-r", "-z", "--name-only", "HEAD"}), '\0');
  }

  std::string newestText(const std::string& file) const override { return textAt("HEAD", file); }

  std::string textAt(const std::string& label, const std::string& file) const override {
    return git({"cat-file", "blob", label + ":" + file});
  }

  std::string newestComment(const std::string& file) const override {
    const std::string commit = git({"rev-list", "-1", "HEAD", "--", file});
    const std::string text = git({"cat-file", "commit", commit.substr(0, commit.find('\n'))});
    return text.substr(std::min(text.size(), text.find("\n\n") + 2));
  }

  std::string kept(const std::string& comment) const override { return comment; }

 private:
  std::string git(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"git", "--literal-pathspecs", "-C", archive()});
    return outputOf(arguments);
  }
};

}  // namespace

std::unique_ptr<Tool> makeGit(const Sandbox& sandbox) {
  return std::make_unique<GitTool>(sandbox, "archive");
}

}  // namespace veldra::live
