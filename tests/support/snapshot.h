// What a window shows and reports to assistive technology, as text.
#pragma once

#include <QAccessible>
#include <QSet>
#include <QStringList>
#include <QWidget>

namespace support {

// One control, or one of the window's own properties ("Title", "Focus", ...).
struct Snapshot {
  QString name;
  QString state;     // what changes while the window is used: text, value, check mark, enabled...
  QStringList rows;  // of a list
  QString looks;     // the rest: role, caption, font, place
};

// All parts of a snapshot in one line.
QString Whole(const Snapshot& control);

// The text in one line, without what differs between runs and systems.
QString Plain(QString text);

QList<Snapshot> SnapshotsOf(const QWidget& window);

// The rows that were announced to assistive technology.
inline QSet<QAccessible::Id> announcedRows;

// The name of a picture's colour as it is painted, or "drawn" if that is not one of six plain
// colours.
QString ColourOf(const QWidget& picture);

// What is wrong with the place of a visible control: it or its text is cut off, or it covers other
// controls of its parent. Pairs that are meant to overlap are left out.
QString LayoutFaults(const QWidget& control);

}  // namespace support
