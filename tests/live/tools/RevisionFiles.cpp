// The tools whose archive is a file with all revisions beside another.

#include <filesystem>

#include "tests/live/Tool.h"

namespace veldra::live {

namespace fs = std::filesystem;

namespace {

class RevisionFiles : public Tool {
 public:
  using Tool::Tool;

  std::string newestText(const std::string& file) const override {
    return outputOf({"co", "-q", "-p", history(file)});
  }

  std::string textAt(const std::string& label, const std::string& file) const override {
    return outputOf({"co", "-q", "-p", "-r" + label, history(file)});
  }

  std::string newestComment(const std::string& file) const override {
    const std::string log = outputOf({"rlog", "-r", history(file)});
    const std::size_t date = log.rfind("\ndate: ");
    const std::size_t from = log.find('\n', date + 1) + 1;
    return log.substr(from, log.rfind("\n=====") + 1 - from);
  }

 protected:
  /// The file with the revisions.
  virtual std::string history(const std::string& file) const = 0;

  /// Every such file, relative to a folder.
  static std::set<std::string> allHistories(const std::string& folder) {
    std::set<std::string> result;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const std::string name = fs::relative(entry.path(), folder).string();
      const bool isPutAside = name.find("Attic/") != std::string::npos;
      if (entry.is_regular_file() && name.ends_with(",v") && !isPutAside) result.insert(name);
    }
    return result;
  }
};

class RcsTool : public RevisionFiles {
 public:
  using RevisionFiles::RevisionFiles;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{.pack = "RCS",
                                       .program = "rlog",
                                       .noLocks = nullptr,
                                       .noKeywords = nullptr,
                                       .noTrail = nullptr,
                                       .outOfDate = "no lock set"};
    return traits;
  }

  void makeArchive() const override { fs::create_directory(archive()); }

  void checkOut(const std::string& /*address*/, const std::string& to) const override {
    fs::copy(sandbox().path("model"), sandbox().path(to), fs::copy_options::recursive);
  }

  std::set<std::string> files() const override {
    std::set<std::string> result;
    for (std::string name : allHistories(archive())) {
      name.erase(name.rfind("RCS/"), 4);
      result.insert(name.substr(0, name.size() - 2));
    }
    return result;
  }

  std::string kept(const std::string& comment) const override { return comment; }

  std::string holder(const std::string& file) const override {
    const std::string locks = between(outputOf({"rlog", "-h", history(file)}), "locks:", "access");
    return between(locks, "\n\t", ":");
  }

 protected:
  std::string history(const std::string& file) const override {
    const fs::path path = archive() + "/" + file;
    return (path.parent_path() / "RCS" / path.filename()).string() + ",v";
  }
};

class CvsTool : public RevisionFiles {
 public:
  using RevisionFiles::RevisionFiles;

  const ToolTraits& traits() const override {
    static constexpr ToolTraits traits{.pack = "CVS",
                                       .program = "cvs",
                                       .noLocks = nullptr,
                                       .noKeywords = nullptr,
                                       .noTrail = "CVS cannot follow a file to another place",
                                       .outOfDate = "Fetch first"};
    return traits;
  }

  void makeArchive() const override {
    outputOf({"cvs", "-d", archive(), "init"});
    fs::create_directory(archive() + "/model");
  }

  void checkOut(const std::string& address, const std::string& to) const override {
    const std::size_t slashes = address.find("//");
    const std::string root = address.substr(0, slashes);
    outputOf({"cvs", "-d", root, "-Q", "checkout", "-d", to, "model"});
  }

  std::set<std::string> files() const override {
    std::set<std::string> result;
    for (const std::string& name : allHistories(archive() + "/model")) {
      result.insert(name.substr(0, name.size() - 2));
    }
    return result;
  }

  std::string kept(const std::string& comment) const override {
    return comment.substr(0, comment.find_last_not_of(" \t\n") + 1) + "\n";
  }

  /// The archive keeps editors in a file in each directory, a line a watched file.
  std::string holder(const std::string& file) const override {
    const fs::path path = history(file);
    const std::string attributes =
        outputOf({"cat", (path.parent_path() / "CVS/fileattr").string()});
    const std::string name = "F" + fs::path(file).filename().string() + "\t";
    return between(between("\n" + attributes, "\n" + name, "\n"), "_editors=", ">");
  }

 protected:
  std::string history(const std::string& file) const override {
    return archive() + "/model/" + file + ",v";
  }
};

}  // namespace

std::unique_ptr<Tool> makeRcs(const Sandbox& sandbox) {
  return std::make_unique<RcsTool>(sandbox, "archive");
}

std::unique_ptr<Tool> makeCvs(const Sandbox& sandbox) {
  return std::make_unique<CvsTool>(sandbox, "archive");
}

}  // namespace veldra::live
