#pragma once

#include <functional>
#include <memory>

namespace forms {

// Starts the toolkit. To be created once per program, before the first form.
class Application {
 public:
  Application();
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // Handles events until LeaveEventLoop.
  void run();

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

void LeaveEventLoop();

// Handles the events that are waiting. User input among them is dropped.
void DoEvents();

// Ends the program at once, without an unload step or any write. Tests replace it.
std::function<void(int status)>& EndProgram();

}  // namespace forms
