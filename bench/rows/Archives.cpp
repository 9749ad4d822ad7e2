#include <filesystem>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"

namespace veldra::bench {

namespace {

/// `ls --json` of a project whose archive holds 20,000 files, against a command of the tool's own.
double listingAgainst(const std::string& tool, const std::string& setUp, const std::string& own) {
  const TempFolder folder;
  const std::string in = "cd '" + folder.path().string() + "' && ";
  const std::string ours = in + commandLineProgram() + " -p model ";
  writeModel(folder.path() / "model", 20000);
  runQuietly(in + setUp);
  runQuietly(ours + "property set CMTool " + tool);
  runQuietly(ours + "connect --archive '" + (folder.path() / "archive").string() + "'");
  // Throwing the listing of the round before away, which is large, is no part of either. The two
  // are so near to each other that a few rounds would measure the machine.
  return ratioOf(
      25, [&] { runQuietly(in + "rm -f ours theirs"); },
      [&] { runQuietly(ours + "ls --json >ours"); }, [&] { runQuietly(in + own + " >theirs"); });
}

}  // namespace

double gitListing() {
  return listingAgainst(
      "Git",
      "git init -q --bare archive && git init -q work && cp -r model/. work && cd work && "
      "git add . && git -c user.name=b -c user.email=b@b commit -q -m m && "
      "git push -q ../archive HEAD:main && git -C ../archive symbolic-ref HEAD refs/heads/main",
      "{ git -C model fetch -q; git -C model ls-tree -r origin/main; }");
}

double subversionListing() {
  return listingAgainst("Subversion",
                        "svnadmin create archive && "
                        "svn import -q -m m model \"file://$PWD/archive\"",
                        "svn ls -R -v \"file://$PWD/archive\"");
}

}  // namespace veldra::bench
