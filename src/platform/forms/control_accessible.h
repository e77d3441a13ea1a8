// What assistive technology is told of controls that the toolkit knows as something else.
#pragma once

#include "platform/forms/control.h"

class QString;

namespace forms {

// Once, when the application starts.
void MakeControlsAccessible();

void Announce(QWidget& widget);

void SetAccessibleRole(QWidget& widget, Role role);

// What a scroll bar's value is called.
void SetAccessibleValue(QWidget& bar, const QString& value);

}  // namespace forms
