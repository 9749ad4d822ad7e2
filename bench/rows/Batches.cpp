#include <filesystem>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"

namespace veldra::bench {

namespace fs = std::filesystem;

namespace {

/// What the pack gives to new units.
constexpr char AutoProperties[] =
    "--config-option config:miscellany:enable-auto-props=yes "
    "--config-option 'config:auto-props:*=svn:needs-lock=*;svn:keywords=Id Revision'";

/// Two working copies of the same model, each of a repository of its own: one for `veldra-cm`, one
/// for the tool by hand.
class TwoCopies {
 public:
  explicit TwoCopies(std::size_t count) : m_count(count) { renew(); }

  void renew() {
    for (const char* name : {"ours", "theirs"}) {
      fs::remove_all(m_folder.path() / name);
      fs::create_directories(path(name) + "/model");
      runQuietly("svnadmin create '" + path(name) + "/archive'");
      writeModel(path(name) + "/model", m_count);
    }
    runQuietly(program() + " connect --archive '" + path("ours") + "/archive'");
    runQuietly("svn checkout -q --force 'file://" + path("theirs") + "/archive' '" + theirs() +
               "'");
  }
  void addOurs() const { runQuietly(program() + " add --all -m new"); }
  void addTheirs() const {
    runQuietly("svn add -q --force " + std::string(AutoProperties) + " '" + theirs() +
               "' && svn commit -q -m new '" + theirs() + "'");
  }
  /// Locks every unit of both, and changes it.
  void change() const {
    runQuietly(program() + " checkout -r '" + ours() + "'");
    runQuietly("find '" + theirs() + "' -name '*.vcmp' | xargs svn lock -q");
    runQuietly("find '" + ours() + "' '" + theirs() +
               "' -name '*.vcmp' | while read -r file; do echo >>\"$file\"; done");
  }
  /// From here on ours takes one command a unit, too.
  void withoutBatches() const {
    runQuietly(program() + " property set Subversion.CheckOutBatch ''");
  }
  void checkOutOurs() const { runQuietly(program() + " checkout --all"); }
  void checkOutTheirs() const {
    runQuietly("find '" + theirs() +
               "' -name '*.vcmp' | while read -r file; do svn lock -q -- \"$file@\"; done");
  }
  void unlockBoth() const {
    for (const std::string& copy : {ours(), theirs()}) {
      runQuietly("find '" + copy + "' -name '*.vcmp' | xargs svn unlock -q --force");
    }
  }
  void checkInOurs() const { runQuietly(program() + " checkin -r '" + ours() + "' -m changed"); }
  void checkInTheirs() const { runQuietly("svn commit -q -m changed '" + theirs() + "'"); }

 private:
  std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }
  std::string ours() const { return path("ours") + "/model"; }
  std::string theirs() const { return path("theirs") + "/model"; }
  std::string program() const { return commandLineProgram() + " -p '" + ours() + "'"; }

  TempFolder m_folder;
  std::size_t m_count;
};

}  // namespace

double checkinBatchAgainstSubversion() {
  const TwoCopies copies(500);
  copies.addOurs();
  copies.addTheirs();
  return ratioOf(
      3, [&] { copies.change(); }, [&] { copies.checkInOurs(); }, [&] { copies.checkInTheirs(); });
}

double addBatchAgainstSubversion() {
  TwoCopies copies(2000);
  return ratioOf(
      1, [&] { copies.renew(); }, [&] { copies.addOurs(); }, [&] { copies.addTheirs(); });
}

double checkoutAgainstShell() {
  const TwoCopies copies(500);
  copies.withoutBatches();
  copies.addOurs();
  copies.addTheirs();
  copies.checkOutOurs();
  copies.checkOutTheirs();
  return ratioOf(
      5, [&] { copies.unlockBoth(); }, [&] { copies.checkOutOurs(); },
      [&] { copies.checkOutTheirs(); });
}

}  // namespace veldra::bench
