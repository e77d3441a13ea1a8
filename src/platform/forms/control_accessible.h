// What assistive technology learns of controls that the toolkit would report as something else.
#pragma once

#include "platform/forms/control.h"

class QString;

namespace forms {

// Registers the interfaces. To be called once, when the application starts.
void MakeControlsAccessible();

// Makes a screen reader speak the widget as if it had got the focus.
void Announce(QWidget& widget);

// Announces the control or row in focus, or the window itself if none is.
void AnnounceFocusOf(QWidget& window);

void SetAccessibleRole(QWidget& widget, Role role);

// Sets the text of a scroll bar's value.
void SetAccessibleValue(QWidget& bar, const QString& value);

}  // namespace forms
