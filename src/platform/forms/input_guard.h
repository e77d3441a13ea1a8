// Decides whether user input is obeyed, whether it comes by mouse, by keys or from assistive
// technology. Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>

class QApplication;
class QWidget;

namespace forms {

// Installs the guard as a filter of all events of the application. It drops input that must not
// act.
void GuardInput(QApplication& application);

// Whether the user may use the widget now: its window is open, no modal window blocks it, and there
// is no InputPause.
bool TakesInput(const QWidget& widget);

// User input is dropped while an object of this class exists.
class InputPause {
 public:
  InputPause();
  ~InputPause();
  InputPause(const InputPause&) = delete;
  InputPause& operator=(const InputPause&) = delete;

 private:
  bool before_;
};

// Carries out what assistive technology asks of a widget, if the widget takes input both now and at
// that time. It runs later from the event loop, because the caller waits for an answer and the
// action may open a window that stays for long.
void PressLater(QWidget& widget, std::function<void()> press);

}  // namespace forms
