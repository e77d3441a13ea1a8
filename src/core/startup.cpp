#include "core/startup.h"

#include <algorithm>
#include <string>

#include "base/quietly.h"
#include "core/module1.h"
#include "core/option_catalogue.h"
#include "platform/files.h"

namespace core {
namespace {

constexpr std::array<Resolution, 20> kResolutions = {{
    {496, 384},   {640, 480},   {800, 600},   {1024, 768},  {1152, 864},
    {1280, 720},  {1280, 768},  {1280, 800},  {1280, 960},  {1280, 1024},
    {1360, 768},  {1366, 768},  {1600, 900},  {1600, 1024}, {1600, 1200},
    {1680, 1050}, {1920, 1080}, {1920, 1200}, {1920, 1440}, {2048, 1536},
}};

struct WorkingFolder {
  const char* tested;
  const char* created;
};

constexpr WorkingFolder kWorkingFolders[] = {
    {"\\roms", "\\ROMs"}, {"\\snaps", "\\Snaps"}, {"\\icons", "\\Icons"}, {"\\config", "\\Config"}};

}  // namespace

void FillSharedState() {
  using namespace Module1;
  ResetSharedState();
  RomPaths[0] = AppFolder + "\\roms";
  SnapPaths[0] = AppFolder + "\\snaps";
  IconPaths[0] = AppFolder + "\\icons";
  FillDefaultProfile();
  std::copy(kResolutions.begin(), kResolutions.end(), ResolutionList.begin());
}

void EnsureFolders() {
  base::Quietly([] {
    for (const auto& folder : kWorkingFolders)
      if (!platform::IsFolder(Module1::AppFolder + folder.tested))
        platform::MakeFolder(Module1::AppFolder + folder.created);
  });
}

}  // namespace core
