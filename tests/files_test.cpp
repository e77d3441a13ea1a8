#include "platform/files.h"

#include "core/module1.h"
#include "platform/file_search.h"
#include "platform/process.h"
#include "startup/startup.h"
#include "support/temp_app.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Files : public support::TempApp {};

TEST_F(Files, NoPathIsTooOddToAskFor) {
  write("x.zip", "");
  std::string deep;
  while (deep.size() < 100000) deep += "a/";
  for (const auto& name : {deep, AppFolder + "/" + deep, AppFolder + "/x.zip" + '\0' + "y"})
    EXPECT_FALSE(IsFile(name)) << name.size();
  EXPECT_EQ(
      FirstFolderOfEach({"x.zip", std::string("x.zip\0y", 7), "../none.zip", "X.ZIP"}, {AppFolder}),
      std::vector<std::size_t>({0, 1, 1, 0}));
  EXPECT_FALSE(FindCommand(deep + " -x") || FindCommand(std::string("x.zip\0 y", 8)));
}

TEST_F(Files, WorkingFoldersAreMadeUpToTheFirstFailure) {
  write("Snaps", "a file in the way");
  fs::create_directory(path("ROMS"));
  startup::EnsureFolders(AppFolder);
  EXPECT_EQ(read("Snaps"), "a file in the way");
  EXPECT_EQ(SubfolderNames(AppFolder), std::vector<std::string>({"ROMS"}));
  fs::remove(path("Snaps"));
  startup::EnsureFolders(AppFolder);
  for (const auto* name : {"Snaps", "Icons", "Config"}) EXPECT_TRUE(exists(name)) << name;
}

}  // namespace
}  // namespace platform
