// Decides whether what a person does is obeyed, whether it comes by mouse, by keys or from
// assistive technology. Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>

class QApplication;
class QWidget;

namespace forms {

// Every event of the application passes the guard from then on, and input that must not act is
// dropped.
void GuardInput(QApplication& application);

// Whether a person may use the widget now: its window is open, no modal window blocks it, and no
// InputPause lasts.
bool TakesInput(const QWidget& widget);

// What a person does while one lives is dropped.
class InputPause {
 public:
  InputPause();
  ~InputPause();
  InputPause(const InputPause&) = delete;
  InputPause& operator=(const InputPause&) = delete;

 private:
  bool before_;
};

// What assistive technology asks of a widget. It is done later, since what it opens may stay for
// long and the caller waits; and only if the widget takes input both now and then.
void PressLater(QWidget& widget, std::function<void()> press);

}  // namespace forms
