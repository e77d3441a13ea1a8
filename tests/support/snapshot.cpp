#include "support/snapshot.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMetaEnum>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>

#include "core/module1.h"

namespace support {
namespace {

QString Quoted(const QString& text) { return "\"" + text + "\""; }

QAccessibleInterface& Accessible(const QWidget& control) {
  return *QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
}

// The name of a control or menu item; of a row, that of its list with the row's number.
QString ObjectOf(QAccessibleInterface* found) {
  if (const auto* object = found->object()) return object->objectName();
  auto* parent = found->parent();
  return QString("%1[%2]").arg(ObjectOf(parent)).arg(parent->indexOfChild(found));
}

QString announcedFocus;

// Of a drop-down, the toolkit announces the control or the row.
bool IsFocusAnnounced(const QWidget& window) {
  const auto* focus = window.focusWidget();
  if (announcedFocus.isEmpty() || (!focus && window.isModal())) return true;
  auto& control = Accessible(focus ? *focus : window);
  auto* row = control.focusChild();
  return announcedFocus == ObjectOf(row ? row : &control) ||
         (control.role() == QAccessible::ComboBox && announcedFocus == focus->objectName());
}

// A row with its description for assistive technology. An empty row has its name in brackets.
QString RowText(const QListWidget& list, int row) {
  const auto& accessible = *Accessible(list).child(row);
  const auto shown = list.item(row)->text(), name = accessible.text(QAccessible::Name);
  const auto description = accessible.text(QAccessible::Description);
  auto text = shown.isEmpty() ? "(" + name + ")" : shown;
  if (!shown.isEmpty() && shown != name) text += " called " + Quoted(name);
  if (!description.isEmpty()) text += " (" + description + ")";
  if (accessible.state().disabled && list.isEnabled()) text += " disabled";
  const auto state = accessible.state();
  if (state.selected != list.item(row)->isSelected() || !state.selectable)
    text += " SELECTION NOT REPORTED";
  if (state.focused != (list.hasFocus() && list.currentRow() == row)) text += " FOCUS NOT REPORTED";
  const auto place = accessible.rect().center();
  const bool isSeen = list.isVisible() && !state.offscreen;
  if (Accessible(list).indexOfChild(&accessible) != row ||
      (isSeen && Accessible(list).childAt(place.x(), place.y()) != &accessible))
    text += " NOT FOUND";
  return text;
}

// All rows of a list; of a tree the selected row and the open ones below it.
QStringList RowsOf(const QWidget& control) {
  QStringList rows;
  if (const auto* list = qobject_cast<const QListWidget*>(&control))
    for (int row = 0; row < list->count(); ++row) rows << RowText(*list, row);
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&control)) {
    auto& accessible = Accessible(*tree);
    for (int cell = 0; cell < accessible.childCount(); ++cell) {
      const auto state = accessible.child(cell)->state();
      if ((state.focused && !tree->hasFocus()) || !(state.invisible || tree->isVisible()))
        rows << "REPORTED THOUGH HIDDEN OR WITHOUT FOCUS";
    }
    const auto* focus = accessible.focusChild();
    if (tree->hasFocus() && (!focus || !focus->state().focused || focus->state().invisible))
      rows << "FOCUS NOT REPORTED";
    const auto* selected = tree->selectedItems().first();
    const auto place = tree->visualItemRect(selected).left();
    if (tree->isVisible() && (place < 0 || place > tree->viewport()->width() / 2))
      rows << "OUT OF SIGHT";
    rows << selected->text(0);
    for (int row = 0; selected->isExpanded() && row < selected->childCount(); ++row)
      rows << selected->child(row)->text(0);
  }
  return rows;
}

QString SelectionOf(const QListWidget& list) {
  QString text;
  for (int row = 0; row < list.count(); ++row)
    if (list.item(row)->isSelected()) text += "row " + QString::number(row);
  return text + (list.verticalScrollBar()->value() > 0 ? " scrolled" : "");
}

// The text and background colours that the program has set.
QString ColoursOf(const QWidget& control) {
  QStringList colours;
  for (const auto role : {control.foregroundRole(), control.backgroundRole()})
    if (control.palette().isBrushSet(QPalette::Active, role))
      colours << control.palette().color(role).name();
  if (control.palette().isBrushSet(QPalette::Active, control.backgroundRole()) &&
      !control.autoFillBackground() && !qobject_cast<const QAbstractScrollArea*>(&control))
    colours << "NOT FILLED";
  return colours.join(' ');
}

QString StateOf(const QWidget& control) {
  const auto& accessible = Accessible(control);
  const auto role = accessible.role();
  const auto state = accessible.state();
  QStringList text;
  if (const auto* label = qobject_cast<const QLabel*>(&control);
      label && role != QAccessible::Graphic)
    text << Quoted(label->text());
  else if (role == QAccessible::CheckBox || role == QAccessible::RadioButton)
    text << (!state.checkable        ? "NOT CHECKABLE"
             : state.checkStateMixed ? "mixed"
             : state.checked         ? "checked"
                                     : "unchecked");
  else if (role == QAccessible::Graphic)
    text << ColourOf(control);
  else if (const auto* list = qobject_cast<const QListWidget*>(&control))
    text << SelectionOf(*list);
  // The drives depend on the machine.
  else if (const auto value = accessible.text(QAccessible::Value);
           !value.isEmpty() && control.objectName() != "Drive1")
    text << Quoted(value);
  text << ColoursOf(control);
  const auto tip = control.toolTip();
  if (!tip.isEmpty() && tip != accessible.text(QAccessible::Name)) text << "tip " + Quoted(tip);
  if (control.isHidden()) text << "hidden";
  if (!control.isEnabledTo(control.parentWidget())) text << "disabled";
  if (state.disabled == control.isEnabled()) text << "ENABLED STATE NOT REPORTED";
  if (control.isVisible()) text << LayoutFaults(control).trimmed();
  text.removeAll("");
  return text.join(' ');
}

QString LooksOf(const QWidget& control) {
  auto& accessible = Accessible(control);
  const auto name = accessible.text(QAccessible::Name),
             caption = control.property("text").toString();
  const auto box = control.geometry();
  const auto font = control.font();
  // Later versions of Qt report a bar as a slider.
  const auto role =
      accessible.role() == QAccessible::Slider ? QAccessible::SpinBox : accessible.role();
  QString text = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
  const bool isLabel = qobject_cast<const QLabel*>(&control);
  if (!isLabel || name != caption) text += " " + Quoted(name);
  if (!isLabel && !caption.isEmpty() && caption != name &&
      accessible.role() != QAccessible::EditableText)
    text += " " + Quoted(caption);
  if (!name.isEmpty() && control.toolTip() == name) text += " as tip too";
  text += QString(" %1px").arg(font.pixelSize());
  // The place of a link depends on the machine's fonts.
  if (!isLabel || control.focusPolicy() == Qt::NoFocus)
    text += QString(" %1,%2 %3x%4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
  if (font.bold()) text += " bold";
  if (font.italic()) text += " italic";
  if (font.underline()) text += " underlined";
  if (accessible.state().readOnly) text += " read only";
  if (accessible.state().defaultButton) text += " default";
  const auto description = accessible.text(QAccessible::Description);
  if (!description.isEmpty() && description != control.toolTip())
    text += " described " + Quoted(description);
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  if (button && button->text().isEmpty() && button->icon().isNull()) text += " NO PICTURE";
  const auto key = accessible.text(QAccessible::Accelerator);
  if (!key.isEmpty()) text += " key " + key;
  const auto* area = qobject_cast<const QAbstractScrollArea*>(&control);
  if (area && area->verticalScrollBarPolicy() != Qt::ScrollBarAsNeeded)
    text += area->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn ? " with scroll bar"
                                                                     : " without scroll bar";
  if (auto* value = accessible.valueInterface())
    text += " from " + value->minimumValue().toString() + " to " + value->maximumValue().toString();
  if (auto* shown = accessible.textInterface();
      shown && shown->text(0, shown->characterCount()) != accessible.text(QAccessible::Value))
    text += " TEXT NOT REPORTED";
  auto actions =
      accessible.actionInterface() ? accessible.actionInterface()->actionNames() : QStringList();
  actions.removeAll(QAccessibleActionInterface::setFocusAction());
  if (!actions.isEmpty() && !button) text += " does " + actions.join(' ');
  if (accessible.role() == QAccessible::ComboBox && control.objectName() != "Drive1") {
    QStringList rows;
    for (int row = 0; row < accessible.childCount(); ++row)
      rows << accessible.child(row)->text(QAccessible::Name);
    text += " of " + rows.join(", ");
  }
  return text;
}

}  // namespace

QString Whole(const Snapshot& control) {
  auto text = control.name + ":";
  if (!control.state.isEmpty()) text += " " + control.state;
  if (!control.rows.isEmpty()) text += " [" + control.rows.join(" | ") + "]";
  return text + " --" + (control.looks.isEmpty() ? "" : " " + control.looks);
}

// Replaces the system's and the program's spellings of a folder by one.
QString Plain(QString text) {
  text.replace(QString::fromStdString(Module1::AppFolder), "<app>").replace('\\', '/');
  return text.replace("/roms", "/ROMs").remove('\r').replace('\n', " / ");
}

QString ColourOf(const QWidget& picture) {
  static const char* const names[] = {"red", "yellow", "green", "cyan", "blue", "magenta"};
  const auto image = const_cast<QWidget&>(picture).grab().toImage();
  const auto pixel = image.pixelColor(image.rect().center());
  if (pixel.saturation() >= 240) return names[(pixel.hue() + 30) / 60 % 6];
  const auto inside = image.copy(image.rect().adjusted(3, 3, -3, -3));
  auto blank = inside;
  blank.fill(pixel);
  return inside == blank ? "blank" : "drawn";
}

QList<Snapshot> SnapshotsOf(const QWidget& window) {
  QList<Snapshot> all;
  const auto add = [&](const QString& name, const QString& state, QStringList rows,
                       const QString& looks) {
    for (auto& row : rows) row = Plain(row);
    all.append({name, Plain(state), rows, Plain(looks)});
  };
  const auto isOurs = [](const QObject& object) {
    return !object.objectName().isEmpty() && !object.objectName().startsWith("qt_");
  };
  const auto description = Accessible(window).text(QAccessible::Description);
  add("Title",
      Quoted(window.windowTitle()) +
          (description.isEmpty() ? "" : " described " + Quoted(description)),
      {}, window.windowIcon().isNull() ? "NO ICON" : "icon");
  const auto* form = qobject_cast<const QMainWindow*>(&window);
  add("Ground", form ? ColoursOf(*form->centralWidget()) : "", {}, "");
  const auto* focus = window.focusWidget();
  add("Focus", focus && isOurs(*focus) ? focus->objectName() : "", {}, "at first");
  add("Announced", IsFocusAnnounced(window) ? "" : announcedFocus, {}, "");
  const auto* popup = QApplication::activePopupWidget();
  const auto* menu = qobject_cast<const QMenu*>(popup);
  const auto name = menu    ? menu->menuAction()->objectName()
                    : popup ? popup->parentWidget()->objectName()
                            : "";
  const bool coversBox = popup && !menu &&
                         popup->geometry().contains(popup->parentWidget()->mapToGlobal(
                             popup->parentWidget()->rect().center()));
  add("Menu", name.isEmpty() ? "" : name + (coversBox ? " is open OVER ITS BOX" : " is open"), {},
      "");
  QStringList order;
  for (auto* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (next->isVisible() && next->focusPolicy() & Qt::TabFocus) order << next->objectName();
  add("Tab", "", {}, order.join(' '));
  for (const auto* item : window.findChildren<QAction*>())
    if (isOurs(*item))
      add(item->objectName(),
          item->isChecked()   ? "checked"
          : item->isVisible() ? ""
                              : "hidden",
          {}, item->isSeparator() ? "separator" : Quoted(item->text()));
  for (const auto* control : window.findChildren<QWidget*>())
    if (isOurs(*control) && control->window() == &window)
      add(control->objectName(), StateOf(*control), RowsOf(*control), LooksOf(*control));
  return all;
}

}  // namespace support

#ifndef Q_OS_WIN
// Replace the toolkit's functions, which drop all announcements where no screen reader can run. A
// toolkit that is linked into the program, as for Windows, does not let itself be replaced.
bool QAccessible::isActive() { return true; }

void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  auto* found = event->accessibleInterface();
  if (!found || event->type() != Focus || found->role() == Window) return;
  support::announcedFocus = support::ObjectOf(found);
  if (!found->object()) support::announcedRows << uniqueId(found);
}
#endif
