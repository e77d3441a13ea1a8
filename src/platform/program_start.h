#pragma once

namespace platform {

// Has to be called first in `main`, before any thread starts.
//
// On POSIX systems: opens standard input, output and error if they are closed, because the next
// file or pipe would take their place. Makes writing to a pipe without a reader or beyond a size
// limit fail instead of ending the program. Copies the environment, which the toolkit may change
// while another thread starts a program.
//
// On Windows: lets libraries be loaded by name from the system's folder only, and makes access to a
// drive that isn't ready fail instead of showing a message box.
void PrepareProgram();

}  // namespace platform
