// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>
#include <string>

#include "base/quietly.h"

class QFont;
class QRect;
class QString;

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
// The text so that a tool tip shows it as it stands.
QString PlainToolTip(const QString& text);

}  // namespace forms
