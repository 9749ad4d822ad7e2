// Where svn does what its helpers do not expect.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;
using testing::Not;

class SubversionPackTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("svn")) GTEST_SKIP() << "Subversion is not installed";
  }
  const std::vector<std::string> m_init = {"init",       "model",     "--tool",
                                           "Subversion", "--archive", "archive"};
  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }
  Sandbox m_sandbox;
};

// svn reads a directory that it adds, and gives up at a name that is no UTF-8.
TEST_F(SubversionPackTest, FilesOfANewDirectoryGoOnBesideANameThatIsNoUtf8) {
  std::filesystem::create_directory(m_sandbox.path("model"));
  ASSERT_EQ(m_sandbox.cm(m_init).code, 0);
  for (const char* file : {"new/one.txt", "new/deep/er/two.txt", "new/deep/er/three.txt"}) {
    m_sandbox.write(std::string("model/") + file, file);
  }
  m_sandbox.write("model/new/caf\xE9.txt", "latin");
  m_sandbox.write("model/new/deep/er/caf\xE9.txt", "latin");
  const Ended added = cm({"add", "--all", "-m", "all"});
  EXPECT_EQ(added.code, 1);
  EXPECT_THAT(added.err, HasSubstr("2 of 6 units"));
  EXPECT_THAT(added.err, HasSubstr("advice:  The tool does not take such a file name."));
  const std::set<std::string> expected = {"model.vdy", "new/one.txt", "new/deep/er/two.txt",
                                          "new/deep/er/three.txt"};
  EXPECT_EQ(makeTool("Subversion", m_sandbox)->files(), expected);
  EXPECT_EQ(cm({"checkout", "new/deep/er/two.txt"}).code, 0);
}

TEST_F(SubversionPackTest, AFolderThatCannotBeConnectedIsNotConnectedByHalves) {
  m_sandbox.write("model/caf\xE9.txt", "latin");
  const Ended refused = m_sandbox.cm(m_init);
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.err, HasSubstr("is no UTF-8"));
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/.svn")));
  std::filesystem::rename(m_sandbox.path("model/caf\xE9.txt"), m_sandbox.path("model/cafe.txt"));
  EXPECT_EQ(cm({"connect"}).code, 0);
  EXPECT_EQ(cm({"add", "--all"}).code, 0);
}

// What looks like a keyword may be anything in a binary file.
TEST_F(SubversionPackTest, BinaryUnitsKeepTheirBytes) {
  const std::string bytes = std::string("PK\0\1", 4) + "$Id: seven bytes $";
  for (const char* file : {"one.slx", "new/two.slx", "new/three.slx"}) {
    m_sandbox.write(std::string("model/") + file, bytes);
  }
  ASSERT_EQ(m_sandbox.cm(m_init).code, 0);
  EXPECT_EQ(cm({"add", "one.slx"}).code, 0);
  EXPECT_EQ(cm({"add", "--all"}).code, 0);
  const std::unique_ptr<Tool> tool = makeTool("Subversion", m_sandbox);
  for (const char* file : {"one.slx", "new/two.slx", "new/three.slx"}) {
    EXPECT_EQ(tool->newestText(file), bytes) << file;
    EXPECT_EQ(m_sandbox.read(std::string("model/") + file), bytes) << file;
    EXPECT_FALSE(m_sandbox.isWritable(std::string("model/") + file)) << file;
  }
}

TEST_F(SubversionPackTest, WhatAnInterruptedAddLeftBehindGoesAlong) {
  m_sandbox.write("model/new/left.slx", std::string("\0$Id$", 5));
  m_sandbox.write("model/new/fresh.mo", "model fresh");
  ASSERT_EQ(m_sandbox.cm(m_init).code, 0);
  m_sandbox.shell(
      "cd model && svn add -q --parents new/left.slx && "
      "svn propset -q svn:keywords Id new/left.slx");
  EXPECT_EQ(cm({"add", "new/left.slx", "new/fresh.mo"}).code, 0);
  const std::set<std::string> expected = {"new/left.slx", "new/fresh.mo"};
  EXPECT_EQ(makeTool("Subversion", m_sandbox)->files(), expected);
  EXPECT_THAT(m_sandbox.shell("svn proplist model/new/left.slx").out, Not(HasSubstr("keywords")));
}

TEST_F(SubversionPackTest, NamesThatBeginWithABlank) {
  m_sandbox.write("model/ one.mo", "model one");
  m_sandbox.write("model/ dir/two.mo", "model two");
  ASSERT_EQ(m_sandbox.cm(m_init).code, 0);
  EXPECT_EQ(cm({"add", " one.mo", " dir/two.mo"}).code, 0);
  EXPECT_EQ(cm({"checkout", " one.mo"}).code, 0);
  m_sandbox.write("model/ one.mo", "model changed");
  EXPECT_EQ(cm({"checkin", " one.mo", "-m", "changed"}).out, "checked in   one.mo\n");
  EXPECT_EQ(makeTool("Subversion", m_sandbox)->newestText(" one.mo"), "model changed");
}

}  // namespace
}  // namespace veldra::live
