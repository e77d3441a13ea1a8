// What assistive technology is told of controls that the toolkit knows as something else.
#pragma once

#include "platform/forms/control.h"

namespace forms {

// Once, when the application starts.
void MakeControlsAccessible();

void SetAccessibleRole(QWidget& widget, Role role);

}  // namespace forms
