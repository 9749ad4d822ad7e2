#include "host/trust/ForeignCommands.h"

#include <gtest/gtest.h>

#include "host/model/PropertyLayers.h"
#include "host/trust/CommandTrust.h"
#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

constexpr char CM[] = "ConfigurationManagement";

TEST(ForeignCommands, OnlyPlainValuesOfKnownSettingsAreHarmless) {
  struct Row {
    const char* subject;
    const char* name;
    const char* value;
    bool isHarmless;
  };
  const Row rows[] = {
      {CM, "CMTool", "Subversion", true},
      {CM, "CMTool", "--evil", false},
      {CM, "ChildThreadTimeOut", "600000", true},
      {CM, "UseSCCtool", "YES; rm", false},
      {CM, "Archive", "https://server/a b/($x)", true},
      {CM, "Archive", "", true},
      {CM, "Archive", "/srv/a\" --config-option \"x", false},
      {CM, "Archive", "svn+ssh://-oProxyCommand=id/x", false},
      {CM, "Archive", "ssh://me@-oProxyCommand=id/x", false},
      {CM, "Archive", "ext::sh -c id", false},
      {CM, "Archive", "-x", false},
      {CM, "Archive", "/srv/a>b", false},
      {CM, "Archive", "/srv/a\nb", false},
      {CM, "Repository", "file:///srv/a$SubDirs", true},
      {CM, "CheckIn", "svn commit", false},
      {CM, "Svn", "sh", false},
      {CM, "archive", "/srv/a", false},
      {CM, "CMHeaderFile", "/etc/passwd", false},
      {CM, "RunCMToolCommand", "xterm", false},
      {CM, "OperationErrorPattern", "", false},
      {"General", "Model", "anything > \"", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(isHarmless({row.subject, "Subversion", row.name}, row.value), row.isHarmless)
        << row.name << " = " << row.value;
  }
}

class Trust : public testing::Test {
 protected:
  Trust() {
    model.put("packs/t.toml",
              "[pack]\nname = \"T\"\n[ConfigurationManagement.T]\n"
              "CheckIn = '$Program in \"$UnitPath\"'\nProgram = 't'\n");
    Problems problems;
    model.layers.load({model.path("packs"), "", model.path("home/user.toml")}, problems);
  }
  std::string names() {
    std::string text;
    for (const ForeignCommand& command : trust.commands()) {
      text += command.key.name + '=' + command.value + '<' + command.below.value_or("none") + ' ';
    }
    return text;
  }
  void load(const std::string& properties) {
    project.reset();
    model.putProject("\"properties\": {\"ConfigurationManagement\": {\"T\": {" + properties +
                     "}}}");
    project = model.load();
  }

  TempModel model;
  CommandTrust trust{model.layers, trustFileBeside(model.path("home/user.toml"))};
  std::unique_ptr<Project> project;
};

TEST_F(Trust, WhatAProjectChangesIsListedAndWhatItRepeatsIsNot) {
  load(R"("Archive": "/srv/a", "Program": "t")");
  EXPECT_EQ(names(), "");
  EXPECT_TRUE(trust.isTrusted());
  load(R"("Program": "rm", "History": "x $Program")");
  EXPECT_EQ(names(), "History=x $Program<none Program=rm<t ");
  EXPECT_FALSE(trust.isTrusted());
}

TEST_F(Trust, HoldsForTheseVeryTextsAndForAnotherRun) {
  load(R"("Program": "rm")");
  EXPECT_EQ(trust.trust("M.vdy"), std::nullopt);
  EXPECT_TRUE(trust.isTrusted());
  EXPECT_TRUE(CommandTrust(model.layers, model.path("home/trusted-commands")).isTrusted());
  for (const char* changed :
       {R"("Program": "rm2")", R"("Program": "rm", "Svn": "x")", R"("Programm": "rm")"}) {
    load(changed);
    EXPECT_FALSE(trust.isTrusted()) << changed;
  }
  load(R"("Program": "rm")");
  EXPECT_TRUE(trust.isTrusted());
  EXPECT_NE(CommandTrust(model.layers, "").trust("M.vdy"), std::nullopt);
}

TEST_F(Trust, AUnitsOwnCommandCountsOnceItIsHandedOut) {
  load("");
  model.putUnit("A.vcmp",
                R"("properties": {"ConfigurationManagement": {"T": {"CheckIn": "evil"}}})");
  project.reset();
  project = model.load();
  EXPECT_TRUE(trust.isTrusted());
  ASSERT_NE(project->unitByFile("A.vcmp")->findProperty({CM, "T", "CheckIn"}, false), nullptr);
  EXPECT_EQ(names(), "CheckIn=evil<$Program in \"$UnitPath\" ");
  EXPECT_FALSE(trust.isTrusted());
}

}  // namespace
}  // namespace veldra::host
