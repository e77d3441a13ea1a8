#pragma once

namespace platform {

// The first thing that `main` does, while there is one thread. Opens what is closed of standard
// input, output and error: else the next file or pipe would pass for it. What is written to a pipe
// without a reader or beyond a size limit fails, instead of ending the program. Remembers the
// environment, which the toolkit changes on one thread while another starts a program.
void PrepareProgram();

}  // namespace platform
