// What only Windows has: its names, locks, rights and handles.
#include <cstdlib>
#include <future>
#include <map>
#include <thread>
#include <utility>

#include "platform/code_page.h"
#include "platform/file_search.h"
#include "platform/files.h"
#include "platform/program_start.h"
#include "platform/system_windows.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

// The entry for this function in the program's import table.
extern "C" decltype(&CreateProcessW) __imp_CreateProcessW;

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Windows : public support::TempApp {
 protected:
  // Opens a file like another program that shares only this access.
  static HANDLE open(const char* name, DWORD shared) {
    return CreateFileW(path(name).c_str(), GENERIC_READ | GENERIC_WRITE, shared, nullptr,
                       OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  }
};

constexpr auto* kCompatibility = L"__COMPAT_LAYER";
decltype(&CreateProcessW) create = nullptr;

// Replaces the imported function. Newer linkers make the import table read-only.
void importCreateProcess(decltype(&CreateProcessW) function) {
  DWORD protection = 0;
  VirtualProtect(&__imp_CreateProcessW, sizeof __imp_CreateProcessW, PAGE_READWRITE, &protection);
  __imp_CreateProcessW = function;
}

// Acts like CreateProcessW for a user without administrator rights and a program that asks for
// them.
template <class... Types>
BOOL WINAPI CreateProcessThatNeedsRights(Types... values) {
  wchar_t layer[32] = L"";
  GetEnvironmentVariableW(kCompatibility, layer, 32);
  if (std::wstring_view(layer) == L"RunAsInvoker") return create(values...);
  SetLastError(kElevationRequired);
  return FALSE;
}

TEST_F(Windows, FileInUseIsWaitedForAndThenLeftAlone) {
  const auto file = AppFolder + "\\a.txt";
  write("a.txt", "old");
  auto* handle = open("a.txt", FILE_SHARE_READ);
  std::thread closing([handle] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    CloseHandle(handle);
  });
  WriteBytes(file, "new");
  closing.join();
  const support::ShortPatience patience;
  // An editor that shares all but deleting, and one that shares nothing.
  handle = open("a.txt", FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_EQ(ReadBytes(file), "new");
  EXPECT_ANY_THROW(DeleteFile(file));
  CloseHandle(handle);
  handle = open("a.txt", 0);
  EXPECT_ANY_THROW(ReadBytes(file));
  EXPECT_ANY_THROW(WriteBytes(file, "newer"));
  CloseHandle(handle);
  SetFileAttributesW(path("a.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  handle = open("a.txt", FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  if (handle == INVALID_HANDLE_VALUE) {  // wine can open it if root runs the test
    EXPECT_ANY_THROW(WriteBytes(file, "newer"));
    EXPECT_ANY_THROW(DeleteFile(file));
  }
  CloseHandle(handle);
  EXPECT_EQ(ReadBytes(file), "new");
  SetFileAttributesW(path("a.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
  WriteBytes(file, "newer");
  EXPECT_EQ(ReadBytes(file), "newer");
}

TEST_F(Windows, FullDiskLeavesTheOldContent) {
  if (!std::getenv("KESTRIVANE_DISK_FULL")) GTEST_SKIP() << "files may have any size";
  write("a.txt", "old");
  for (const auto* name : {"\\a.txt", "\\b.txt"})
    EXPECT_ANY_THROW(WriteBytes(AppFolder + name, std::string(100000, 'x')));
  EXPECT_EQ(read("a.txt"), "old");
  EXPECT_FALSE(exists("b.txt"));
}

TEST_F(Windows, PathsMayBeLongAndContainAnyCharacter) {
  auto folder = AppFolder + "\\日本🎮";
  for (int level = 0; level < 8; ++level) {
    MakeFolder(folder);
    folder += "\\" + std::string(60, static_cast<char>('a' + level));
  }
  MakeFolder(folder);
  ASSERT_GT(ToWide(folder).size(), 500U);
  WriteBytes(folder + "/Kestrivane.exe", "");
  WriteBytes(folder + "\\é.zip", "seconds=0");
  EXPECT_TRUE(IsFolder(folder) && IsFile(folder + "\\\\É.ZIP"));
  EXPECT_EQ(FileNames(folder), std::vector<std::string>({"Kestrivane.exe", "é.zip"}));
  EXPECT_EQ(FirstFolderOfEach({"é.zip"}, {AppFolder, folder + "\\"}),
            std::vector<std::size_t>({1}));
  EXPECT_EQ(SubfolderNames(AppFolder), std::vector<std::string>({"日本🎮"}));
  EXPECT_TRUE(FindCommand(folder + "\\Kestrivane -print-games")) << "wine can't start it";
  DeleteFile(folder + "\\É.zip");
  EXPECT_FALSE(IsFile(folder + "\\é.zip"));
}

TEST_F(Windows, PathsAreWithinFoldersInAnySpelling) {
  for (const auto* folder : {"c:/", "C:\\", "C:/GAMES", "c:\\games\\É"})
    EXPECT_TRUE(IsWithin("C:\\Games\\é\\x", folder)) << folder;
  for (const auto* folder : {"D:\\", "C:\\Game", "C:\\Games\\é\\x\\y"})
    EXPECT_FALSE(IsWithin("C:\\Games\\é\\x", folder)) << folder;
  EXPECT_TRUE(IsWithin("\\\\machine\\share\\x", "//Machine/Share"));
  EXPECT_FALSE(IsWithin("\\\\machine\\shared", "\\\\machine\\share"));
}

TEST_F(Windows, AnEmptyDriveIsEmptyAndAMissingOneCantBeRead) {
  if (!IsFolder("Y:\\")) GTEST_SKIP() << "there is no empty drive Y:";
  EXPECT_TRUE(SubfolderNames("Y:\\").empty() && FileNames("Y:\\").empty());
  for (const auto& folder : {std::string("X:\\"), AppFolder + "\\none"})
    EXPECT_ANY_THROW(SubfolderNames(folder)) << folder;
  SetErrorMode(0);
  PrepareProgram();
  EXPECT_TRUE(GetErrorMode() & SEM_FAILCRITICALERRORS) << "the system asks for a disk in a box";
}

TEST_F(Windows, DevicesAreNoFiles) {
  for (const auto* name : {"con", "nul.zip", "com1", "\\\\.\\nul", "\\\\.\\pipe\\x"}) {
    const auto file = *name == '\\' ? name : AppFolder + "\\" + name;
    EXPECT_FALSE(IsFile(file) || IsFolder(file) || FindCommand(file)) << name;
    EXPECT_ANY_THROW(ReadBytes(file)) << name;
    EXPECT_ANY_THROW(WriteBytes(file, "x")) << name;
  }
  EXPECT_EQ(FirstFolderOfEach({"con.zip", "nul"}, {AppFolder}), std::vector<std::size_t>({1, 1}));
}

TEST_F(Windows, SharesWorkLikeLocalFolders) {
  const std::string share = "\\\\kestrivane\\tests";
  if (!IsFolder(share)) GTEST_SKIP() << "there is no " << share;
  WriteBytes(share + "\\A.ZIP", "x");
  auto file = share + "\\\\a.zip";
  EXPECT_TRUE(FileExists(file) && file == share + "\\a.zip") << file;
  EXPECT_EQ(FirstFolderOfEach({"a.zip"}, {share + "\\"}), std::vector<std::size_t>({0}));
  EXPECT_EQ(ReadBytes("//kestrivane/tests/a.zip"), "x");
  DeleteFile(share + "\\a.zip");
}

TEST_F(Windows, AProgramThatNeedsRightsRunsWithItsArgumentsAndIsListedWithoutTheRights) {
  addEmulator();
  write("日本 é/game.zip", "seconds=0");
  const auto game = "\"" + AppFolder + "\\日本 é\\game.zip\" ";
  // The system itself would run this file, whose name is the path's beginning up to a blank.
  fs::copy_file(path("Kestrivane.exe"), path("").parent_path().parent_path() / "Mis.exe");
  create = __imp_CreateProcessW;
  for (const bool needsRights : {false, true}) {
    if (needsRights) importCreateProcess(CreateProcessThatNeedsRights);
    EXPECT_TRUE(capture("Kestrivane.exe -print-games").ends_with("Nimblewick's Parade\r\n"));
    EXPECT_EQ(run(AppFolder + "\\kestrivane " + game + "\"-x y\\\""), 1);
    EXPECT_NE(read("error.log").find("unknown argument -x y\\"), std::string::npos)
        << needsRights << read("error.log");
    EXPECT_EQ(run("Kestrivane " + game + "-input-system=xinput"), 0) << read("error.log");
    EXPECT_NE(read("error.log").find("Input system: xinput"), std::string::npos) << needsRights;
  }
  importCreateProcess(create);
  EXPECT_EQ(GetEnvironmentVariableW(kCompatibility, nullptr, 0), 0U);
}

TEST_F(Windows, ProgramsInheritNoHandleExceptThePipeOfAListing) {
  addEmulator();
  write("game.zip", "seconds=3");
  for (const bool listing : {true, false}) {
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    ASSERT_TRUE(CreatePipe(&readEnd, &writeEnd, &inheritable, 0));
    const auto running = std::async(std::launch::async, [&] {
      listing ? capture("Kestrivane game.zip") : std::to_string(run("Kestrivane game.zip"));
    });
    std::this_thread::sleep_for(std::chrono::seconds(1));
    CloseHandle(writeEnd);
    // The pipe is broken only if no process has inherited its other end.
    EXPECT_FALSE(PeekNamedPipe(readEnd, nullptr, 0, nullptr, nullptr, nullptr)) << listing;
    EXPECT_EQ(running.wait_for(std::chrono::seconds(0)), std::future_status::timeout) << listing;
    CloseHandle(readEnd);
  }
}

TEST_F(Windows, CodePageIsTheSystems) {
  const std::map<UINT, std::pair<const char*, const char*>> pages = {
      {1252, {"ñ€®\r\n表", "\xF1\x80\xAE\r\n表"}},
      {1251, {"Жук\r\né\r\n表", "\xC6\xF3\xEA\r\né\r\n表"}},
      {932, {"日本ｶ\\表\r\né\r\nЖ", "\x93\xFA\x96{\xB6\\\x95\\\r\né\r\n\x84\x47"}}};
  if (!pages.contains(GetACP())) GTEST_SKIP() << "code page " << GetACP();
  const auto& [text, bytes] = pages.at(GetACP());
  EXPECT_EQ(EncodeCodePage(text), bytes);
  EXPECT_EQ(DecodeCodePage(bytes), text);
  // Half a character of several bytes is decoded as Windows-1252.
  EXPECT_EQ(DecodeCodePage("x\x93").substr(0, 1), "x");
  EXPECT_EQ(DecodeCodePage(EncodeCodePage(DecodeCodePage("x\x93"))), DecodeCodePage("x\x93"));
}

}  // namespace
}  // namespace platform
