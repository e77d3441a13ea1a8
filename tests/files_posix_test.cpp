#include <sys/stat.h>

#include <fstream>
#include <thread>

#include "config/user_settings.h"
#include "platform/file_search.h"
#include "platform/files.h"
#include "support/temp_app.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class PosixFiles : public support::TempApp {};

TEST_F(PosixFiles, AreFoundInAnySpelling) {
  for (const auto* name : {"ROMs/Éclair One.ZIP", "ROMs/two.zip", "ROMs/TWO.zip", "ROMs/three.zip",
                           "ROMs/FOUR.zip", "TWO.ZIP", "Éclair one.zip", "Three.ZIP"})
    write(name, "");
  for (const auto* folder : {"ROMs/folder.zip", "three.zip"}) fs::create_directory(path(folder));
  fs::create_symlink("gone.zip", path("ROMs/link.zip"));
  fs::create_directory_symlink(".", path("ROMs/loop"));
  const struct {
    const char *name, *file;  // empty if there is no such file
  } rows[] = {{"\\roms\\éclair one.zip", "ROMs/Éclair One.ZIP"},
              {"/roms\\two.zip", "ROMs/two.zip"},
              {"\\roms\\TWO.zip", "ROMs/TWO.zip"},
              {"\\roms\\\\two.zip", "ROMs/two.zip"},
              {"\\roms\\LOOP\\loop\\two.zip", "ROMs/two.zip"},
              {"\\roms\\link.zip", ""},
              {"\\roms\\folder.zip", ""},
              {"\\roms\\two.zip\\x", ""},
              {"\\none\\two.zip", ""}};
  for (const auto& [name, file] : rows) {
    EXPECT_EQ(IsFile(AppFolder + name), *file != '\0') << name;
    EXPECT_TRUE(!*file || fs::equivalent(SystemPath(AppFolder + name), path(file))) << name;
  }
  // A different spelling in an earlier folder comes before the exact spelling in a later one.
  EXPECT_EQ(FirstFolderOfEach({"two.zip", "éclair one.zip", "Three.ZIP", "three.zip", "four.zip",
                               "link.zip", "folder.zip", "loop"},
                              {AppFolder + "\\none", AppFolder, AppFolder + "\\ROMS\\loop"}),
            std::vector<std::size_t>({1, 1, 1, 2, 2, 3, 3, 3}));
  auto shared = "\\\\" + AppFolder.substr(1) + "\\\\roms\\\\two.zip";
  EXPECT_TRUE(FileExists(shared));
  EXPECT_EQ(shared, "\\\\" + AppFolder.substr(1) + "\\roms\\two.zip");
  EXPECT_TRUE(IsFolder(AppFolder + "\\roms\\") && !IsFolder(AppFolder + "\\roms\\two.zip"));
  EXPECT_TRUE(IsFile("roms\\two.zip") && !IsFile("")) << "relative to the working folder";
}

TEST_F(PosixFiles, AreNoticedWhenTheyWereJustCreatedOrDeleted) {
  fs::create_directory(path("ROMs"));
  const auto name = AppFolder + "\\ROMS\\GAME.ZIP";
  const auto now = fs::file_time_type::clock::now();
  const auto old = now - std::chrono::milliseconds(12345);
  const auto coarse = std::chrono::floor<std::chrono::seconds>(now - std::chrono::seconds(1));
  for (const auto& changed : {now, fs::file_time_type(coarse), old}) {
    fs::last_write_time(path("ROMs"), changed);
    ASSERT_FALSE(IsFile(name));
    write("ROMs/game.zip", "");
    // A second change within one tick of the file system's clock does not change the folder's time.
    if (changed != old) fs::last_write_time(path("ROMs"), changed);
    EXPECT_TRUE(IsFile(name));
    fs::remove(path("ROMs/game.zip"));
    EXPECT_FALSE(IsFile(name));
  }
}

TEST_F(PosixFiles, APipeIsNeitherReadNorWaitedFor) {
  mkfifo(path("pipe").c_str(), 0666);
  EXPECT_FALSE(IsFile(AppFolder + "\\pipe"));
  EXPECT_ANY_THROW(ReadBytes(AppFolder + "\\pipe"));
  EXPECT_ANY_THROW(WriteBytes(AppFolder + "\\pipe", "x"));
}

TEST_F(PosixFiles, ALockedSettingsStoreBlocksNobodyAndIsWrittenLater) {
  const fs::path lock = std::string(getenv("XDG_CONFIG_HOME")) + "/Kestrivane UI.conf.lock";
  std::ofstream(lock) << "another";
  config::SaveUserSettings();
  EXPECT_EQ(settings(), "");
  fs::remove(lock);
  while (settings().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

}  // namespace
}  // namespace platform
