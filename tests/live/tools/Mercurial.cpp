#include <regex>

#include "tests/live/Tool.h"

namespace veldra::live {

namespace {

class MercurialTool : public Tool {
 public:
  using Tool::Tool;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{.pack = "Mercurial",
                                       .program = "hg",
                                       .noLocks = "Mercurial has no locks",
                                       .noKeywords = "Mercurial expands no keywords by itself",
                                       .noTrail = nullptr,
                                       .outOfDate = "Fetch first"};
    return traits;
  }

  void makeArchive() const override { outputOf({"hg", "init", archive()}); }

  void checkOut(const std::string& address, const std::string& to) const override {
    outputOf({"hg", "clone", "-q", address, to});
  }

  std::set<std::string> files() const override {
    std::set<std::string> result = pieces(hg({"manifest", "-r", "tip"}), '\n');
    // The tool's own record of labels.
    result.erase(".hgtags");
    return result;
  }

  std::string newestText(const std::string& file) const override { return textAt("tip", file); }

  std::string textAt(const std::string& label, const std::string& file) const override {
    return hg({"cat", "-r", label, "path:" + file});
  }

  std::string newestComment(const std::string& file) const override {
    return hg({"log", "-r", "last(file('path:" + file + "'))", "-T", "{desc}"});
  }

  std::string kept(const std::string& comment) const override {
    const std::string trimmed = std::regex_replace(comment, std::regex("[ \t\r]+\n"), "\n");
    return trimmed.substr(0, trimmed.find_last_not_of('\n') + 1);
  }

 private:
  std::string hg(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"hg", "--cwd", archive()});
    return outputOf(arguments);
  }
};

}  // namespace

std::unique_ptr<Tool> makeMercurial(const Sandbox& sandbox) {
  return std::make_unique<MercurialTool>(sandbox, "archive");
}

}  // namespace veldra::live
