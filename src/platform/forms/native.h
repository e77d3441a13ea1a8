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
class QResizeEvent;
class QString;
class QWidget;

namespace forms {

struct Box;
struct FontStyle;

// Runs an event's procedure, if the form has set one. This is the error boundary of all events.
template <class Handler, class... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) base::RunGuarded([&] { handler(std::forward<Arguments>(arguments)...); });
}

int ToPixels(int twips);
QRect ToPixels(const Box& box);
QFont ToFont(const FontStyle& style);
QString ToQString(const std::string& text);

// The colour, made lighter or darker until it has this contrast to the background.
QColor WithContrast(const QColor& colour, const QColor& background, double contrast);

// The palette, changed so that selected text is readable.
QPalette WithReadableSelection(QPalette palette);

// Paints a line inside the edges of a box. On a scaled screen, an edge may lie within a pixel; the
// line covers the whole pixels that a filled box would cover.
void PaintLineInside(QPainter& painter, const QRect& box, const QColor& colour, int pixels);

// Marks a widget that has the focus.
void PaintFocusRing(QWidget& on, int pixels = 2);

// Marks the chosen one of several buttons by a bar at its lower edge.
void PaintChosenMark(QWidget& on);

// Adds a focus ring to a control of the toolkit whose style hardly shows the focus.
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

// Paints the frame of a view, or its focus ring, around its contents, `margin` pixels above and
// below them. `on` is the view itself or its viewport.
void PaintViewEdge(const QWidget& view, QWidget& on, const QRect& contents, int margin);

bool IsPaint(const QEvent& event);
bool IsFocusChange(const QEvent& event);

// A view with a frame, or the focus ring, around its contents. Both keep kMargin pixels from the
// first and the last row. At the sides they are painted on the rows, which have margins there.
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
  // The margins belong to the view itself, not to its viewport.
  bool event(QEvent* event) override {
    const bool handled = View::event(event);
    if (kMargin > 0 && IsPaint(*event))
      PaintViewEdge(*this, *this, this->viewport()->geometry(), kMargin);
    if (IsFocusChange(*event)) this->update();
    return handled;
  }
  // When a scroll bar disappears, its part of the edge would stay in the margins.
  void resizeEvent(QResizeEvent* event) override {
    View::resizeEvent(event);
    if (kMargin > 0) this->update();
  }
  // The ring does not scroll with the contents.
  void scrollContentsBy(int x, int y) override {
    View::scrollContentsBy(x, y);
    this->viewport()->update();
  }
};

// Shows the text as a plain-text tool tip, or none if it is empty.
void ShowPlainToolTip(const QHelpEvent& at, const QString& text, QWidget& on);

// Makes the control handle Enter itself instead of pressing the form's default button.
void SetTakesEnter(QWidget& control);
bool TakesEnter(const QWidget& control);

}  // namespace forms
