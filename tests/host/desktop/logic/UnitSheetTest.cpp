#include "host/desktop/logic/UnitSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldra::host::desktop {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

Json body() {
  return Json::parse(R"({
    "name": "Pump", "id": "1", "later": {"kept": [1, 2]},
    "attributes": {"flow": 12, "list": [1, 2], "unit": "l/min"},
    "elements": [{"type": "Port", "name": "in", "id": "a", "extra": true},
                 "no object",
                 {"type": "Port", "name": "out", "id": "b", "attributes": {"direction": "out"}}],
    "boxes": [{"element": "in", "x": 10, "y": 20.5, "width": 100, "height": 50, "colour": "red"}],
    "connections": [{"from": "in", "to": "out", "text": ""}]})");
}

TEST(UnitSheetTest, WhatNobodyChangedStaysByteForByte) {
  Json changed = body();
  const UnitSheet sheet = sheetOf(changed);
  applySheet(sheet, sheet, changed);
  EXPECT_EQ(changed, body());
}

TEST(UnitSheetTest, OnlyWhatIsEditedChanges) {
  Json changed = body();
  const UnitSheet before = sheetOf(changed);
  UnitSheet after = before;
  after.name = "Main Pump";
  after.elements[1].name = "outlet";
  after.attributes[0].value = "14";
  after.boxes[0].x = 40;
  applySheet(before, after, changed);

  Json wanted = body();
  wanted["name"] = "Main Pump";
  wanted["elements"] = Json::array({wanted["elements"][0], wanted["elements"][2], "no object"});
  wanted["elements"][1]["name"] = "outlet";
  wanted["attributes"]["flow"] = "14";
  wanted["boxes"][0]["x"] = 40;
  EXPECT_EQ(changed, wanted) << changed.dump(2);
}

TEST(UnitSheetTest, RowsComeAndGo) {
  Json changed = body();
  const UnitSheet before = sheetOf(changed);
  UnitSheet after = before;
  after.elements.erase(after.elements.begin());
  after.elements.push_back({.type = "Operation", .name = "start"});
  after.boxes.clear();
  after.attributes.clear();
  applySheet(before, after, changed);

  const UnitSheet read = sheetOf(changed);
  ASSERT_THAT(read.elements, SizeIs(2));
  EXPECT_EQ(changed["elements"][0]["id"], "b") << "the row that stays keeps its identity";
  EXPECT_THAT(changed["elements"][1]["id"].get<std::string>(), SizeIs(32));
  EXPECT_THAT(read.boxes, IsEmpty());
  EXPECT_FALSE(changed.contains("attributes"));
  EXPECT_EQ(changed["later"], body()["later"]);
}

TEST(UnitSheetTest, BodiesOfTheWrongKindHoldNothingAndLoseNothing) {
  for (const char* text :
       {R"({"elements": 7, "boxes": "x", "attributes": []})", "[]", "null",
        R"({"name": {"latin1": "f\u00fcr"}, "boxes": [{"x": "left"}], "elements": [[], null]})"}) {
    Json changed = Json::parse(text);
    const UnitSheet sheet = sheetOf(changed);
    EXPECT_THAT(sheet.elements, IsEmpty()) << text;
    applySheet(sheet, sheet, changed);
    EXPECT_EQ(changed, Json::parse(text));
  }
}

}  // namespace
}  // namespace veldra::host::desktop
