#include "launch/play_launch.h"

#include <array>
#include <string>

#include "core/emulator_contract.h"
#include "core/game_catalogue.h"

namespace launch {

void BuildLaunchRequest(const core::GameEntry& game) {
  constexpr std::array<const char*, 3> kEndings = {".zip\"", ".zip\" -input-system=xinput",
                                                   ".zip\" -input-system=rawinput"};
  const auto inputMethod = Module1::Profiles[1].InputMethod;
  if (inputMethod < kEndings.size())
    Module1::LaunchRequest.CommandLine = std::string(core::kPlayCommand) +
                                         Module1::RomPaths.at(game.RomFolder) + "\\" +
                                         game.RomName + kEndings.at(inputMethod);
  Module1::LaunchRequest.RomName = game.RomName;
}

}  // namespace launch
