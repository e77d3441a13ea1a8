#include "launch/play_launch.h"

#include <array>

#include "core/emulator_contract.h"
#include "core/game_catalogue.h"

namespace launch {

void BuildLaunchRequest(const core::GameEntry& game) {
  using namespace Module1;
  constexpr std::array<const char*, 3> kEndings = {".zip\"", ".zip\" -input-system=xinput",
                                                   ".zip\" -input-system=rawinput"};
  const auto inputMethod = Profiles[1].InputMethod;
  if (inputMethod < kEndings.size())
    LaunchRequest.CommandLine = std::string(core::kPlayCommand) + RomPaths.at(game.RomFolder) +
                                "\\" + game.RomName + kEndings.at(inputMethod);
  LaunchRequest.RomName = game.RomName;
}

}  // namespace launch
