#pragma once

#include <string>
#include <vector>

namespace standin {

// Pretends to play a game. The arguments are the archive's path and optionally -input-system=NAME.
// The archive is a text: seconds=N is how long the play lasts (5 by default), end= is how it ends:
//
//   good   error.log reports a normal end; so it does after SIGTERM or SIGINT
//   error  error.log holds an error report
//   nolog  no error.log
//   crash  abort(), no error.log
//
// With any other text the play lasts 5 seconds and ends well. An error.log left from before is
// removed first. For a missing archive or an unknown argument, the play ends at once with an
// error.log that says so. Returns the exit status.
int Play(const std::vector<std::string>& arguments, const std::string& version);

}  // namespace standin
