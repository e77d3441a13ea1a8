// What a window shows and tells assistive technology, as text.
#pragma once

#include <QStringList>
#include <QWidget>

namespace support {

// One control, or one of the window's own properties ("Title", "Focus", ...).
struct Snapshot {
  QString name;
  QString state;  // what changes while the window is used: text, value, check mark, row, enabled...
  QStringList rows;  // of a list
  QString looks;     // what does not: role, caption, font, place
};

// In one line.
QString Whole(const Snapshot& control);

// In one line, and the same in every run and on every system.
QString Plain(QString text);

QList<Snapshot> SnapshotsOf(const QWidget& window);

// The plain colour of a picture as it is drawn, or "drawn".
QString ColourOf(const QWidget& picture);

// What is wrong with the place of a visible control: whether it or its text is cut off, and what of
// its parent's other controls it covers. Pairs that are meant to overlap are left out.
QString LayoutFaults(const QWidget& control);

}  // namespace support
