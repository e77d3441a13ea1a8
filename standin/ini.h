#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standin {

struct Option {
  std::string name;
  std::string value;
};

// The general options in force for a game: the emulator's own values, overlaid by the global part
// of Config/Kestrivane.ini in the working folder, overlaid by the game's section there. Names of
// the file, its folder, sections and keys match in any letter case; unknown keys are skipped.
std::vector<Option> OptionsInForce(std::string_view game);

}  // namespace standin
