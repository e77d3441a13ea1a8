#pragma once

#include <string>
#include <vector>

namespace standin {

// Plays a game as far as its surroundings can tell. The arguments are the archive's path and
// optionally -input-system=NAME. The archive is a text: seconds=N is how long the play lasts (5
// where it says nothing), end= is how it ends:
//
//   good   error.log tells of a normal end, as it also does after SIGTERM or SIGINT
//   error  error.log holds an error report
//   nolog  no error.log
//   crash  abort(), no error.log
//
// Any other text plays 5 seconds to a good end. An error.log left from before is removed first.
// A missing archive or an unknown argument ends at once with an error.log that says so. Returns
// the exit status.
int Play(const std::vector<std::string>& arguments, const std::string& version);

}  // namespace standin
