// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <string>
#include <utility>

#include "base/quietly.h"

class QFont;
class QPaintEvent;
class QRect;
class QString;
class QWidget;

namespace forms {

struct Box;
struct FontStyle;

// Runs an event's procedure, if the form has one. Its failures end here.
template <class Handler, class... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) base::Quietly([&] { handler(std::forward<Arguments>(arguments)...); });
}

int ToPixels(int twips);
QRect ToPixels(const Box& box);
QFont ToFont(const FontStyle& style);
QString ToQString(const std::string& text);

// Marks a widget or a view's contents as having the focus.
void PaintFocusRing(QWidget& on);

// A control of the toolkit whose style hardly shows the focus.
template <class Native>
class Ringed : public Native {
 public:
  using Native::Native;

 protected:
  void paintEvent(QPaintEvent* event) override {
    Native::paintEvent(event);
    if (this->hasFocus()) PaintFocusRing(*this);
  }
};

template <class View>
class RingedView : public View {
 public:
  using View::View;

 protected:
  void paintEvent(QPaintEvent* event) override {
    View::paintEvent(event);
    if (this->hasFocus()) PaintFocusRing(*this->viewport());
  }
  // The ring does not scroll with the contents.
  void scrollContentsBy(int x, int y) override {
    View::scrollContentsBy(x, y);
    if (this->hasFocus()) this->viewport()->update();
  }
};

// The text so that a tool tip shows it as it stands.
QString PlainToolTip(const QString& text);

}  // namespace forms
