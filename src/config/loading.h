// The part of a start that needs no window.
#pragma once

#include <future>
#include <optional>

namespace config {

// Begins to fill the shared state: what is built in, the working folders, the configuration file,
// the game catalogue. It is done by another thread where the system has one to spare; nobody else
// touches the shared state until the result is fetched. The result is the number of the message
// with which the program ends, if it can't start.
std::future<std::optional<unsigned char>> StartLoading();

}  // namespace config
