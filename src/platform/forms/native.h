// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <string>
#include <utility>

#include "base/error_boundary.h"

class QColor;
class QFont;
class QHelpEvent;
class QPaintEvent;
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

// Marks a widget or a view's contents as having the focus.
void PaintFocusRing(QWidget& on, int pixels = 2);

// The line round a view's contents.
void PaintFrame(QWidget& on);

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

template <class View>
class RingedView : public View {
 public:
  // The frame is a part of the contents: of a frame round them a scaled screen loses sides.
  explicit RingedView(QWidget* parent) : View(parent) { this->setFrameShape(View::NoFrame); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    View::paintEvent(event);
    if (this->hasFocus())
      PaintFocusRing(*this->viewport());
    else
      PaintFrame(*this->viewport());
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
