#include "host/resources/MessageCatalogue.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>
#include <utility>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;

std::string sourceRoot() {
  return (fs::path(__FILE__).parent_path() / "../../../host").string();
}

MessageCatalogue::Report into(Problems& problems) {
  return [&problems](const Problem& problem) { problems.push_back(problem); };
}

int placeholders(const std::string& text) {
  int count = 0;
  while (text.find("%" + std::to_string(count + 1)) != std::string::npos) ++count;
  return count;
}

TEST(MessageCatalogue, hasAClearTextForEveryNumberWithItsValues) {
  Problems problems;
  const MessageCatalogue catalogue(sourceRoot(), "en", into(problems));
  const std::map<int, int> withValues = {
      {948, 1},   {949, 4},   {953, 2},   {954, 1},   {955, 1},   {966, 1},   {967, 1},
      {47640, 1}, {48352, 2}, {50055, 1}, {60001, 1}, {60002, 2}, {60003, 2}, {60005, 1},
      {60006, 2}, {60007, 2}, {60008, 1}, {60009, 1}, {60010, 1}, {60011, 2}, {60100, 1},
      {60030, 2}, {60116, 1}, {60201, 2}, {60202, 2}, {60203, 2}, {60206, 1}, {60207, 1},
      {60208, 1}, {60209, 1}, {60210, 1}, {60211, 1}, {60403, 2}, {60405, 1}, {60407, 1},
      {60250, 1}, {60560, 1}, {60621, 1}, {60624, 1}, {60626, 1}, {60650, 1}, {60651, 1},
      {60652, 2}, {60653, 1}, {60654, 1}, {60655, 2}, {60656, 1}, {60657, 1}, {60709, 2},
      {60710, 3}, {60715, 1}, {60717, 2}, {60718, 1}, {60719, 2}, {60720, 1}, {60734, 2},
      {60736, 1}, {60737, 1}, {60743, 1}, {60810, 1}, {60870, 1}};
  std::vector<int> ids = {948,   949,   953,   954,   955,   958,   959,   962,   966,   967,
                          46547, 46554, 46560, 46563, 46565, 46566, 46567, 47640, 48312, 49434,
                          49488, 49494, 49762, 49763, 49764, 49765, 49982, 50055};
  for (int id = 48318; id <= 48359; ++id) ids.push_back(id);
  for (int id = 60001; id <= 60011; ++id) ids.push_back(id);
  for (int id = 60100; id <= 60101; ++id) ids.push_back(id);
  for (int id = 60110; id <= 60122; ++id) ids.push_back(id);
  ids.insert(ids.end(), {60020, 60021, 60030, 60250, 60261, 60810, 60811, 60812, 60870});
  for (int id = 60201; id <= 60211; ++id) ids.push_back(id);
  // The dialogs' texts: single ones, and groups with one per column or command.
  const std::pair<int, int> dialogTexts[] = {
      {60400, 60417}, {60420, 60441}, {60445, 60468}, {60470, 60491}, {60495, 60510},
      {60520, 60520}, {60530, 60535}, {60560, 60569}, {60600, 60626}, {60630, 60636},
      {60640, 60646}, {60650, 60657}, {60700, 60743}};
  for (const auto& [first, last] : dialogTexts) {
    for (int id = first; id <= last; ++id) ids.push_back(id);
  }
  constexpr int EmptyTrailer = 48351;
  for (const int id : ids) {
    const std::string text = catalogue.text(id);
    EXPECT_EQ(text.empty(), id == EmptyTrailer) << id;
    const auto values = withValues.find(id);
    EXPECT_EQ(placeholders(text), values == withValues.end() ? 0 : values->second) << id;
    EXPECT_EQ(text.find("lease "), std::string::npos) << id;
  }
  EXPECT_EQ(catalogue.size(), ids.size()) << "a text that nothing shows, or a number twice";
  EXPECT_EQ(catalogue.text(1), "");
  EXPECT_TRUE(problems.empty());
}

TEST(MessageCatalogue, germanIsCompleteAndTakesTheSameValues) {
  Problems problems;
  const MessageCatalogue english(sourceRoot(), "en", into(problems));
  const MessageCatalogue german(sourceRoot(), "de", into(problems));
  ASSERT_GT(english.size(), 200U);
  EXPECT_EQ(german.size(), english.size());
  EXPECT_TRUE(problems.empty());
  // Words that are the same in both languages.
  const std::set<int> alike = {60414 - 1, 60414, 48351, 60603, 60605, 60608, 60610, 60710, 60724};
  for (int id = 900; id < 60900; ++id) {
    const std::string text = german.text(id);
    EXPECT_EQ(placeholders(text), placeholders(english.text(id))) << id;
    if (alike.contains(id) || text.empty()) continue;
    EXPECT_NE(text, english.text(id)) << id;
  }
}

TEST(MessageCatalogue, otherLanguagesLieOverEnglish) {
  const TempDirectory root;
  fs::create_directory(root.file("resources"));
  root.write("resources/messages.en.toml", "[messages]\n1 = \"one\"\n2 = \"two\"\n3 = \"three\"\n");
  root.write("resources/messages.de.toml", "[messages]\n1 = \"eins\"\n2 = \"zwei\"\n");
  root.write("resources/messages.de_AT.toml", "[messages]\n2 = \"zwoa\"\nx = \"no number\"\n");
  root.write("resources/messages.fr.toml", "[messages\n");
  const struct {
    const char* language;
    const char* texts;
    std::size_t problems;
  } rows[] = {{"de_AT", "eins zwoa three", 0}, {"de_CH", "eins zwei three", 0},
              {"en_GB", "one two three", 0},   {"fr", "one two three", 1},
              {"../x", "one two three", 0},    {"", "one two three", 0}};
  for (const auto& row : rows) {
    Problems problems;
    const MessageCatalogue catalogue(root.path(), row.language, into(problems));
    EXPECT_EQ(catalogue.text(1) + " " + catalogue.text(2) + " " + catalogue.text(3), row.texts)
        << row.language;
    EXPECT_EQ(problems.size(), row.problems) << row.language;
  }
}

}  // namespace
}  // namespace veldra::host
