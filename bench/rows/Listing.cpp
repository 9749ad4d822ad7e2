#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/tool/ArchiveListing.h"

namespace veldra::bench {

namespace {

constexpr std::size_t RecordCount = 100000;

std::string listing() {
  std::string text;
  for (std::size_t i = 0; i < RecordCount; ++i) {
    const std::string number = std::to_string(i);
    text += number + "\t" + (i % 3 == 0 ? "alice" : "") + "\t" + (i % 3 == 0 ? "RW" : "RO") +
            "\tCoffee Machine/Package" + std::to_string(i / 100) +
            "/Water Circuit/A component with a telling name " + number + ".vcmp\n";
  }
  return text;
}

// The same split and the same four matches per record; prints the seconds they took.
constexpr const char* PerlScript = R"(
use Time::HiRes 'time';
local $/; open my $f, '<', $ARGV[0]; my $text = <$f>;
my $start = time; my @items;
for my $record (split /\n/, $text) {
  my ($file) = $record =~ /^[^\t]*\t[^\t]*\t[^\t]*\t(.+)/i or next;
  my ($version) = $record =~ /^([^\t]*)\t/i;
  my ($mode) = $record =~ /^[^\t]*\t[^\t]*\t(?:(RW)|RO)\t/i;
  my ($locker) = $record =~ /^[^\t]*\t([^\t]*)\t/i;
  push @items, [$file, $version, $mode, $locker];
}
die unless @items == 100000;
print time - $start, "\n";
)";

double secondsOfPerl(const std::string& script, const std::string& file) {
  const std::string command = "perl '" + script + "' '" + file + "'";
  std::FILE* const pipe = popen(command.c_str(), "r");
  double seconds = 0;
  if (pipe == nullptr || std::fscanf(pipe, "%lf", &seconds) != 1 || pclose(pipe) != 0) {
    std::abort();
  }
  return seconds;
}

void readInto(CMArchiveItemListWrapper& items, const std::string& text) {
  ArchiveListing reader;
  if (reader.read(text, 1, items.list()) != 1 || items.list().size() != RecordCount) std::abort();
}

}  // namespace

double listingAgainstPerl() {
  const BenchProject project(1, "/bin/true");
  const std::string text = listing();
  const std::string file = (project.folder() / "listing").string();
  const std::string script = (project.folder() / "split.pl").string();
  writeFile(file, text);
  writeFile(script, PerlScript);
  // Perl measures itself, so that its start does not count.
  double ours = 0;
  double theirs = 0;
  for (int round = 0; round < 7; ++round) {
    ours += secondsOf([&] {
      CMArchiveItemListWrapper items;
      readInto(items, text);
    });
    theirs += secondsOfPerl(script, file);
  }
  return ours / theirs;
}

double listingMemory() {
  const BenchProject project(1, "/bin/true");
  const std::size_t before = residentBytes();
  const std::string text = listing();
  CMArchiveItemListWrapper items;
  readInto(items, text);
  const std::size_t held = peakResidentBytes() - before;
  return static_cast<double>(held) / static_cast<double>(text.size());
}

}  // namespace veldra::bench
