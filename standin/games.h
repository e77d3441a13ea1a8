#pragma once

#include <span>
#include <string>

namespace standin {

struct Game {
  std::string name;   // at most 12 characters
  std::string title;  // Windows-1252
};

// The games of the listing, in its order.
std::span<const Game> Games();

}  // namespace standin
