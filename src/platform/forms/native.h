// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <string>
#include <utility>

#include "base/error_boundary.h"

class QColor;
class QEvent;
class QFont;
class QHelpEvent;
class QPaintEvent;
class QPainter;
class QPalette;
class QRect;
class QString;
class QWidget;

namespace forms {

struct Box;
struct FontStyle;

// Runs an event's procedure, if the form has one. Its failures end here.
template <class Handler, class... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) base::RunGuarded([&] { handler(std::forward<Arguments>(arguments)...); });
}

int ToPixels(int twips);
QRect ToPixels(const Box& box);
QFont ToFont(const FontStyle& style);
QString ToQString(const std::string& text);

// The colour, made lighter or darker until it stands out from the background.
QColor WithContrast(const QColor& colour, const QColor& background, double contrast);

// The palette with selected text that can be read.
QPalette WithReadableSelection(QPalette palette);

// A line inside the edges of a box. It covers whole pixels of the screen, those that a filled box
// covers: on a scaled screen an edge may lie within one.
void PaintLineInside(QPainter& painter, const QRect& box, const QColor& colour, int pixels);

// Marks a widget that has the focus.
void PaintFocusRing(QWidget& on, int pixels = 2);

// Marks one of several buttons as the chosen one, by a bar at its lower edge.
void PaintChosenMark(QWidget& on);

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

// Paints the frame of a view, or the focus ring, round its contents and this many pixels above and
// below them. `on` is the view itself or its viewport.
void PaintViewEdge(const QWidget& view, QWidget& on, const QRect& contents, int margin);

bool IsPaint(const QEvent& event);
bool IsFocusChange(const QEvent& event);

// A view with a frame or the focus ring round its contents. Neither touches the first or the last
// row, from which they keep the given pixels; at the sides they are painted on the contents, which
// have margins of their own there.
template <class View, int kMargin>
class RingedView : public View {
 public:
  explicit RingedView(QWidget* parent) : View(parent) {
    this->setFrameShape(View::NoFrame);
    if (kMargin > 0) this->setViewportMargins(0, kMargin, 0, kMargin);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    View::paintEvent(event);
    PaintViewEdge(*this, *this->viewport(), this->viewport()->rect(), kMargin);
  }
  // The view itself has the margins.
  bool event(QEvent* event) override {
    const bool handled = View::event(event);
    if (kMargin > 0 && IsPaint(*event))
      PaintViewEdge(*this, *this, this->viewport()->geometry(), kMargin);
    if (IsFocusChange(*event)) this->update();
    return handled;
  }
  // The ring does not scroll with the contents.
  void scrollContentsBy(int x, int y) override {
    View::scrollContentsBy(x, y);
    this->viewport()->update();
  }
};

// Shows the text in a tool tip as it stands, or none for an empty text.
void ShowPlainToolTip(const QHelpEvent& at, const QString& text, QWidget& on);

// Makes the control handle Enter itself instead of pressing the form's default button.
void SetTakesEnter(QWidget& control);
bool TakesEnter(const QWidget& control);

}  // namespace forms
