#include "host/model/ModelText.h"

#include <gmock/gmock.h>

#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

struct HostileText {
  const char* name;
  std::string text;
  const char* what;
};

std::string nested(std::size_t depth) {
  return R"({"format": 1, "type": "Package", "name": "N", "x": )" + std::string(depth, '[') +
         std::string(depth, ']') + "}";
}

const HostileText Hostile[] = {
    {"empty", "", "is empty"},
    {"blank", " \n\t\n", "is empty"},
    {"only a header",
     "// $"
     "Id$\n",
     "cut off"},
    {"no line end in the header", "// Veldra package", "cut off"},
    {"binary", std::string("// x\n{\0}", 8), "not a text"},
    {"cut off", R"({"format": 1, "type": "Package", "na)", "cut off"},
    {"cut off behind the head", R"({"format": 1, "type": "Package", "name": "N", "x": [1,)",
     "cut off"},
    {"newer", R"({"format": 2, "type": "Package", "name": "N"})", "format 2"},
    {"merge conflict", "// h\n<<<<<<< .mine\n{}\n=======\n", "merge"},
    {"no format", R"({"type": "Package", "name": "N"})", ""},
    {"format of a wrong kind", R"({"format": "x", "type": "Package", "name": "N"})", "format"},
    {"a list", "[1, 2]", ""},
    {"other text", "model Pump\n  Real p;\nend Pump;\n", ""},
    {"bytes that are no UTF-8", "{\"format\": 1, \"type\": \"\xff\", \"name\": \"N\"}", ""},
    {"trailing bytes", R"({"format": 1, "type": "P", "name": "N"} x)", "line 1"},
    {"nested without end", nested(100000), "nested too deep"},
};

TEST(ModelText, refusesHostileTextsAndSaysWhy) {
  for (const HostileText& row : Hostile) {
    Problem problem;
    EXPECT_FALSE(parseModelText(row.text, problem)) << row.name;
    EXPECT_THAT(problem.what, HasSubstr(row.what)) << row.name;
    EXPECT_NE(problem.what, "") << row.name;
    EXPECT_NE(problem.wayOut, "") << row.name;
  }
}

TEST(ModelText, readsHeadsOfHostileTextsCutAnywhere) {
  for (const HostileText& row : Hostile) {
    const std::size_t longest = std::min<std::size_t>(row.text.size(), 200);
    for (std::size_t size = 0; size <= longest; ++size) {
      const std::string_view part = std::string_view(row.text).substr(0, size);
      const ModelHead head = readModelHead(part, true);
      EXPECT_NE(head.state, ModelHead::State::Short) << row.name << " cut at " << size;
      (void)readModelHead(part, false);
    }
  }
}

TEST(ModelText, asksForMoreBytesInsteadOfComplaining) {
  const std::string text = TempModel::unitText("Package", "Water \\\"Circuit\\\"");
  for (std::size_t size = 0; size < text.find(",\n  \"id\""); ++size) {
    EXPECT_EQ(readModelHead(std::string_view(text).substr(0, size), false).state,
              ModelHead::State::Short)
        << size;
  }
  const ModelHead head = readModelHead(text, true);
  EXPECT_EQ(head.state, ModelHead::State::Whole);
  EXPECT_EQ(head.type, "Package");
  EXPECT_EQ(head.name, "Water \"Circuit\"");
}

TEST(ModelText, keepsHeaderAndUnknownKeysByteForByte) {
  const std::string text =
      "// Veldra package\r\n"
      "// $"
      "Id: Brewing.vpkg 7 2026-01-02 anna $\r\n"
      "//odd\t\xff\n"
      "{\n"
      "  \"format\": 1,\n"
      "  \"type\": \"Package\",\n"
      "  \"name\": \"Cr\u00e8me\",\n"
      "  \"id\": \"1\",\n"
      "  \"aFutureKey\": {\n"
      "    \"empty\": [],\n"
      "    \"list\": [\n"
      "      1.5,\n"
      "      null,\n"
      "      {}\n"
      "    ]\n"
      "  },\n"
      "  \"elements\": [\n"
      "    {\n"
      "      \"type\": \"Port\",\n"
      "      \"name\": \"a\",\n"
      "      \"id\": \"2\",\n"
      "      \"attributes\": {\n"
      "        \"x\": \"\\u0001\"\n"
      "      }\n"
      "    }\n"
      "  ]\n"
      "}\n";
  Problem problem;
  const std::optional<ModelText> model = parseModelText(text, problem);
  ASSERT_TRUE(model) << problem.what;
  EXPECT_EQ(writeModelText(*model), text);
}

TEST(ModelText, keepsBytesThatAreNoUtf8) {
  const std::string bytes("a\xff\xe9\x80z\0\"", 7);
  const std::string written = writeJson(jsonOfBytes(bytes));
  EXPECT_EQ(bytesOfJson(Json::parse(written)), bytes);
  EXPECT_EQ(bytesOfJson(jsonOfBytes("Cr\u00e8me")), "Cr\u00e8me");
  EXPECT_EQ(bytesOfJson(Json::parse(R"({"latin1": "\u20ac"})")), std::nullopt);
}

TEST(ModelText, givesNewFilesAHeaderThatToolsCanFill) {
  const ModelText model = newModelText("Package", "N");
  EXPECT_EQ(model.header,
            "// Veldra package\n// $"
            "Id$\n");
  EXPECT_NE(model.body["id"], newModelText("Package", "N").body["id"]);
}

}  // namespace
}  // namespace veldra::host
