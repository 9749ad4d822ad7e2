#include <regex>

#include "tests/live/Tool.h"

namespace veldra::live {

namespace {

class SubversionTool : public Tool {
 public:
  using Tool::Tool;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{.pack = "Subversion",
                                       .program = "svn",
                                       .noLocks = nullptr,
                                       .noKeywords = nullptr,
                                       .noTrail = nullptr,
                                       .outOfDate = "Fetch first"};
    return traits;
  }

  void makeArchive() const override { outputOf({"svnadmin", "create", archive()}); }

  void checkOut(const std::string& address, const std::string& to) const override {
    outputOf(
        {"svn", "checkout", "-q", address.starts_with('/') ? "file://" + address : address, to});
  }

  std::set<std::string> files() const override {
    std::set<std::string> result = pieces(outputOf({"svn", "ls", "-R", url()}), '\n');
    std::erase_if(result, [](const std::string& name) { return name.ends_with('/'); });
    return result;
  }

  std::string newestText(const std::string& file) const override {
    return outputOf({"svn", "cat", url(file)});
  }

  std::string textAt(const std::string& label, const std::string& file) const override {
    const std::string number = outputOf({"svn", "propget", "veldra:label:" + label, url()});
    return outputOf({"svn", "cat", "-r", number.substr(0, number.find('\n')), url(file)});
  }

  std::string newestComment(const std::string& file) const override {
    const std::string revision =
        between(outputOf({"svn", "log", "--xml", "-l", "1", url(file)}), "revision=\"", "\"");
    return outputOf(
        {"svn", "propget", "--no-newline", "--revprop", "-r", revision, "svn:log", url()});
  }

  std::string kept(const std::string& comment) const override {
    return std::regex_replace(comment, std::regex("\r\n"), "\n");
  }

  std::string holder(const std::string& file) const override {
    return between(outputOf({"svn", "info", url(file)}), "Lock Owner: ", "\n");
  }

 private:
  std::string url(const std::string& file = {}) const {
    return "file://" + archive() + (file.empty() ? "" : "/" + file + "@");
  }
};

}  // namespace

std::unique_ptr<Tool> makeSubversion(const Sandbox& sandbox) {
  return std::make_unique<SubversionTool>(sandbox, "archive");
}

}  // namespace veldra::live
