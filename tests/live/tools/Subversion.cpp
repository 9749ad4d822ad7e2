#include <regex>

#include "tests/live/Credentials.h"
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

/// The same archive behind a source control provider, which has its passwords from svn's own
/// stores.
class SubversionProvider : public SubversionTool {
 public:
  using SubversionTool::SubversionTool;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{
        .pack = "Subversion provider",
        .program = "svn",
        .noLocks = nullptr,
        .noKeywords = "a provider says nothing of the words in files",
        .noTrail = nullptr,
        .outOfDate = "is not checked out by you",
        .noVersions = "the provider interface tells none",
        .noLabels = "the provider interface has none",
        .noLockCommand = "the provider interface locks with a check-out",
        .ownProperties = "is checked out by alice"};
    return traits;
  }

  std::vector<std::vector<std::string>> setUp(const std::string& address) const override {
    return {{"init", "model", "--name", "Machine"},
            {"provider", "install", VELDRA_SUBVERSION_PROVIDER},
            {"-p", "model", "provider", "use", "veldra subversion"},
            {"-p", "model", "connect", "--archive", address}};
  }

  std::string homeOf(const std::string& user) const override { return "home-" + user; }

  void letIn(const std::string& user, const std::string& address) const override {
    if (address.starts_with("svn://")) {
      const std::string server = address.substr(0, address.rfind('/'));
      keepCredentials(sandbox(), homeOf(user), "<" + server + "> models", user, user);
    } else {
      const std::string uuid = between(outputOf({"svnlook", "uuid", archive()}), "", "\n");
      if (!uuid.empty()) keepCredentials(sandbox(), homeOf(user), uuid, user, {});
    }
  }
};

}  // namespace

std::unique_ptr<Tool> makeSubversion(const Sandbox& sandbox) {
  return std::make_unique<SubversionTool>(sandbox, "archive");
}

std::unique_ptr<Tool> makeSubversionProvider(const Sandbox& sandbox) {
  return std::make_unique<SubversionProvider>(sandbox, "archive");
}

}  // namespace veldra::live
