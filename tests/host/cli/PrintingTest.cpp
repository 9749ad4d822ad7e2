#include <gtest/gtest.h>

#include <sstream>

#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/FailureListing.h"
#include "host/cli/printing/Listing.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {
namespace {

TEST(BytesAsTextTest, JsonTextKeepsEveryByteReadable) {
  const std::pair<std::string, std::string> rows[] = {
      {"plain/Crème €.vcmp 😀", "plain/Crème €.vcmp 😀"},
      {"caf\xE9", "caf\\xe9"},
      {"\xC3", "\\xc3"},                             // cut off
      {"\xC0\xAF", "\\xc0\\xaf"},                    // longer than needed
      {"\xED\xA0\x80", "\\xed\\xa0\\x80"},           // half a surrogate pair
      {"\xF4\x90\x80\x80", "\\xf4\\x90\\x80\\x80"},  // beyond the last character
      {"C:\\dir\\name", "C:\\dir\\name"},
      {"looks like \\xe9", "looks like \\x5cxe9"},
  };
  for (const auto& [bytes, text] : rows) EXPECT_EQ(textForJson(bytes), text);
}

TEST(BytesAsTextTest, NamesCannotDriveTheTerminal) {
  EXPECT_EQ(textForPeople("a\nb\x1b[2Jc\t\x7f"), "a\\x0ab\\x1b[2Jc\\x09\\x7f");
  EXPECT_EQ(linesForPeople("one\ntwo\x1b\r"), "one\ntwo\\x1b\\x0d");
}

UnitRecord withResult(UnitResult result) {
  UnitRecord record;
  record.result = result;
  return record;
}

TEST(ReportTest, ExitCodeTellsAllSomeOrNothing) {
  const UnitRecord done = withResult(UnitResult::Done);
  const UnitRecord planned = withResult(UnitResult::Planned);
  EXPECT_EQ(exitCodeOf({done, done, planned}), ExitCode::AllDone);
  for (const UnitResult bad : {UnitResult::Unknown, UnitResult::Refused, UnitResult::Declined,
                               UnitResult::Failed, UnitResult::Skipped, UnitResult::Cancelled}) {
    EXPECT_EQ(exitCodeOf({done, withResult(bad)}), ExitCode::SomeFailed);
    EXPECT_EQ(exitCodeOf({withResult(bad), withResult(bad)}), ExitCode::NothingDone);
  }
  EXPECT_EQ(exitCodeOf({}), ExitCode::NothingDone);
}

TEST(ReportTest, DocumentIsValidWhateverTheBytes) {
  UnitRecord unit;
  unit.path = "a\xFF\n\"b\".vcmp";
  unit.message = std::string("zero \0 byte", 11);
  unit.result = UnitResult::Failed;
  std::ostringstream out;
  printJson(Report{.command = "checkin", .units = {unit}}, out);
  const auto document = nlohmann::ordered_json::parse(out.str());
  std::vector<std::string> keys;
  for (const auto& [key, value] : document["units"][0].items()) keys.push_back(key);
  EXPECT_EQ(keys, (std::vector<std::string>{"path", "name", "type", "version", "mode", "locker",
                                            "result", "message"}));
  EXPECT_EQ(document["units"][0]["path"], "a\\xff\n\"b\".vcmp");
  EXPECT_EQ(document["units"][0]["result"], "failed");
  EXPECT_EQ(document.count("message"), 0U);
}

TEST(ReportTest, AUnitIsALineOfTheDocument) {
  UnitRecord plain{.path = "a/b c.vcmp", .name = "b c", .mode = "RO", .state = "checked in"};
  UnitRecord planned{.path = "\x7F\t\\x41 \xC3\xA4", .locker = "R&D \"x\""};
  planned.result = UnitResult::Planned;
  planned.plan = {.commands = {{"svn", "a\nb"}, {}}, .file = "/f", .lock = "taken"};
  std::ostringstream out;
  printJson(Report{.command = "add", .units = {plain, planned}, .message = "no\n\xFF"}, out);
  const auto document = nlohmann::ordered_json::parse(out.str());
  EXPECT_EQ(document["units"][0]["state"], "checked in");
  EXPECT_EQ(document["units"][1]["path"], "\x7F\t\\x5cx41 \xC3\xA4");
  EXPECT_EQ(document["units"][1]["locker"], "R&D \"x\"");
  EXPECT_EQ(document["units"][1]["plan"].dump(),
            R"({"commands":[["svn","a\nb"],[]],"file":"/f","lock":"taken"})");
  EXPECT_EQ(document["message"], "no\n\\xff");

  std::istringstream lines(out.str());
  std::string line;
  for (int head = 0; head < 3; ++head) std::getline(lines, line);
  for (const auto& unit : document["units"]) {
    std::getline(lines, line);
    if (line.ends_with(',')) line.pop_back();
    EXPECT_EQ(nlohmann::ordered_json::parse(line), unit);
  }
}

TEST(ReportTest, WithoutAUnitThereIsAnEmptyList) {
  std::ostringstream out;
  printJson(Report{.command = "ls"}, out);
  EXPECT_EQ(nlohmann::json::parse(out.str()),
            nlohmann::json({{"command", "ls"}, {"units", nlohmann::json::array()}}));
}

TEST(ListingTest, ColumnsLineUpAndAUnitIsALine) {
  UnitRecord one{.path = "a\nb", .name = "Long Name", .version = "1", .mode = "RO"};
  UnitRecord two{.path = "c", .name = "N", .version = "1.10", .mode = "RW", .locker = "alice"};
  std::ostringstream out;
  printListing({one, two}, out);
  EXPECT_EQ(out.str(),
            "MODE  VERSION  LOCKER  TYPE  NAME       PATH\n"
            "RO    1                      Long Name  a\\x0ab\n"
            "RW    1.10     alice         N          c\n");
}

TEST(FailureListingTest, TheSameReasonIsToldOnceInARow) {
  const auto failed = [](const std::string& path, const std::string& reason) {
    return UnitRecord{.path = path,
                      .result = UnitResult::Failed,
                      .message = "/m/" + path + reason + "\ncommand: add /m/" + path + " /tmp/x" +
                                 path + "\nadvice:  connect"};
  };
  std::ostringstream out;
  FailureListing listing(out);
  listing.add(failed("a/b", " is far"));
  listing.add(failed("a", " is far"));
  listing.add(failed("c", " is near"));
  listing.add(failed("a/b", " is far"));
  listing.add({.path = "d", .result = UnitResult::Cancelled});
  listing.add({.path = "e", .result = UnitResult::Cancelled});
  EXPECT_EQ(out.str(),
            "failed  a/b\n"
            "    /m/a/b is far\n    command: add /m/a/b /tmp/xa/b\n    advice:  connect\n"
            "failed  a  (as above)\n"
            "failed  c\n"
            "    /m/c is near\n    command: add /m/c /tmp/xc\n    advice:  connect\n"
            "failed  a/b\n"
            "    /m/a/b is far\n    command: add /m/a/b /tmp/xa/b\n    advice:  connect\n"
            "cancelled  d\ncancelled  e\n");
}

}  // namespace
}  // namespace veldra::host::cli
