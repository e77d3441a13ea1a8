// Shared by the sources of this folder; no other code includes it.
#pragma once

#include "platform/forms/picture.h"

class QIcon;
class QPixmap;

namespace forms {

const QPixmap& PixmapOf(const Picture& picture);
QIcon IconOf(const Picture& picture);
// The program's icon, for title bars and task lists.
QIcon WindowIcon();

}  // namespace forms
