#include <gmock/gmock.h>
#include <windows.h>

#include <filesystem>
#include <thread>

#include "host/platform/AtomicFile.h"
#include "host/platform/Environment.h"
#include "host/platform/FileHead.h"
#include "host/platform/FolderList.h"
#include "host/platform/Libraries.h"
#include "host/platform/Processes.h"
#include "host/platform/RealPath.h"
#include "host/platform/win32/WideText.h"
#include "tests/host/platform/LibraryHead.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

/// A file that another program has open and lets nobody delete.
HANDLE keepOpen(const std::string& file) {
  return CreateFileA(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                     nullptr);
}

TEST(FilesOfWindows, aFileThatIsOpenElsewhereStaysWholeAndIsNamed) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "old");
  const HANDLE other = keepOpen(file);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  const auto problem = writeFileAtomically(file, "new");
  ASSERT_TRUE(problem);
  EXPECT_THAT(*problem,
              HasSubstr("'" + file + "' could not be written: another program has it open"));
  EXPECT_EQ(*readFile(file, 99), "old");
  CloseHandle(other);
  EXPECT_EQ(directory.entries(), 1U);
}

TEST(FilesOfWindows, aFileThatIsClosedInTimeIsReplaced) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "old");
  const HANDLE other = keepOpen(file);
  std::thread closer([other] {
    Sleep(200);
    CloseHandle(other);
  });
  EXPECT_EQ(writeFileAtomically(file, "new"), std::nullopt);
  closer.join();
  EXPECT_EQ(directory.read("f"), "new");
}

TEST(FilesOfWindows, namesOfDevicesAreRefused) {
  const TempDirectory directory;
  Environment environment("");
  const std::string from = directory.write("from", "x");
  for (const char* name : {"con", "nul.txt", "a.", "a "}) {
    const std::string file = directory.file(name);
    EXPECT_THAT(writeFileAtomically(file, "x").value_or(""), HasSubstr("Choose another name"))
        << name;
    EXPECT_EQ(Processes().createOutputFile(file), nullptr) << name;
    EXPECT_FALSE(environment.moveFile(from, file)) << name;
  }
  EXPECT_EQ(directory.entries(), 1U);
}

TEST(FilesOfWindows, pathsOfThreeHundredCharactersWork) {
  const TempDirectory directory;
  const std::string part(60, 'p');
  const std::string name = part + "/" + part + "/" + part + "/" + part + "/" + part;
  const std::string folder = directory.file(name);
  Environment environment("");
  const std::string from = directory.write("from", "moved");
  ASSERT_TRUE(environment.moveFile(from, folder + "\\first"));
  EXPECT_EQ(writeFileAtomically(folder + "/second", "written"), std::nullopt);
  EXPECT_EQ(*readFile(folder + "\\first", 99), "moved");
  EXPECT_EQ(readFileFacts(folder + "\\second").size, 7U);
  std::string error;
  EXPECT_EQ(listFolder(folder, error).size(), 2U);
  EXPECT_EQ(error, "");
  EXPECT_EQ(environment.omGetFullPathOfDirectory(folder, error), folder);
}

TEST(FilesOfWindows, aLongNameTakesTheFormWithoutALimitWhateverItsRoot) {
  const std::string part = "/" + std::string(200, 'p');
  const std::wstring wide = L"\\" + std::wstring(200, L'p');
  EXPECT_EQ(nativePath("c:" + part + part), L"\\\\?\\c:" + wide + wide);
  EXPECT_EQ(nativePath("//server/share" + part + part), L"\\\\?\\UNC\\server\\share" + wide + wide);
  EXPECT_EQ(nativePath("\\\\server\\share/short"), L"\\\\server\\share\\short");
}

TEST(FilesOfWindows, theLibrarysPathsTakeNamesForUtf8) {
  const std::pair<const char*, const wchar_t*> rows[] = {
      {"\xC3\xA4/\xE2\x82\xAC.mo", L"\u00E4/\u20AC.mo"},
      {"a\xF0\x9F\x98\x80z", L"a\U0001F600z"},
      {"a\xFF\xC3", L"a\xFFFD\xFFFD"},
  };
  for (const auto& [narrow, wide] : rows)
    EXPECT_EQ(std::filesystem::path(narrow).native(), wide) << narrow;
}

TEST(FilesOfWindows, bothSeparatorsAreTaken) {
  const TempDirectory directory;
  std::string slashes = directory.file("f");
  for (char& c : slashes) c = c == '\\' ? '/' : c;
  EXPECT_EQ(writeFileAtomically(slashes, "x"), std::nullopt);
  EXPECT_EQ(directory.read("f"), "x");
}

TEST(FilesOfWindows, aFileHasOneNameHoweverItIsSpelled) {
  const TempDirectory directory;
  std::filesystem::create_directory(directory.file("Deep Folder"));
  const std::string file = directory.write("Deep Folder/Pump.mo", "");
  std::string other = file;
  for (char& c : other) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  EXPECT_NE(other, realPath(file));
  EXPECT_EQ(realPath(other), realPath(file));
  EXPECT_THAT(realPath(other), testing::EndsWith("\\Deep Folder\\Pump.mo"));
  EXPECT_EQ(realPath(directory.file("absent")), "");
}

TEST(LibrariesOfWindows, aLibraryFor32BitProgramsIsRefusedWithTheReason) {
  const TempDirectory directory;
  const std::string file = directory.write("p.dll", libraryHead(0x014C) + std::string(4096, '\0'));
  std::string error;
  EXPECT_EQ(Libraries().load(file, error), nullptr);
  EXPECT_THAT(error, HasSubstr("was made for 32-bit programs"));
  EXPECT_EQ(Libraries().load("kernel32.dll", error), nullptr);
  EXPECT_THAT(error, HasSubstr("no absolute path"));
  EXPECT_EQ(Libraries().load(directory.file("absent.dll"), error), nullptr);
  EXPECT_THAT(error, HasSubstr("absent.dll"));
}

}  // namespace
}  // namespace veldra::host
