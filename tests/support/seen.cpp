// What a window shows and tells assistive technology, and what the program holds, as text.
#include <QAccessible>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QTreeWidget>

#include "base/text.h"
#include "platform/code_page.h"
#include "support/ui_test.h"

namespace support {
namespace {

QString Looks(const QWidget& control) {
  const auto box = control.geometry();
  const auto font = control.font();
  auto text = " " + QString::number(font.pixelSize()) + "px";
  // Where a link stands depends on the machine's fonts.
  if (control.focusPolicy() == Qt::NoFocus || !qobject_cast<const QLabel*>(&control))
    text += QString(" %1,%2 %3x%4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
  if (font.bold()) text += " bold";
  if (font.italic()) text += " italic";
  if (font.underline()) text += " underlined";
  for (const auto role : {control.foregroundRole(), control.backgroundRole()})
    if (control.palette().isBrushSet(QPalette::Active, role))
      text += " " + control.palette().color(role).name();
  return text;
}

// Those of a list as assistive technology has them, and of a tree the current one and what is open
// below it.
QString Rows(const QWidget& control, const QAccessibleInterface& told) {
  QStringList rows;
  if (const auto* list = qobject_cast<const QListWidget*>(&control))
    for (int row = 0; row < list->count(); ++row) {
      const auto name = told.child(row)->text(QAccessible::Name);
      rows << (list->item(row)->text() == name ? "" : "~") + name +
                  (told.child(row)->state().selected ? "*" : "");
    }
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&control)) {
    const auto* current = tree->currentItem();
    rows << current->text(0) + (current->isSelected() ? "*" : "");
    for (int row = 0; current->isExpanded() && row < current->childCount(); ++row)
      rows << current->child(row)->text(0);
  }
  return rows.empty() ? QString() : " [" + rows.join('|') + "]";
}

// The letter of a picture's plain red, yellow, green or blue as it is drawn, else "?".
QChar ColourOf(const QWidget& picture) {
  const auto image = const_cast<QWidget&>(picture).grab().toImage();
  const auto pixel = image.pixelColor(image.rect().center());
  return pixel.saturation() < 240 ? '?' : "rygcbm"[(pixel.hue() + 30) / 60 % 6];
}

QString Line(const QWidget& control) {
  const auto& told = *QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
  const auto name = told.text(QAccessible::Name), value = told.text(QAccessible::Value);
  const auto caption = control.property("text").toString();
  QString text = QMetaEnum::fromType<QAccessible::Role>().valueToKey(told.role());
  text += " \"" + name + "\"";
  if (caption != name) text += " \"" + caption + "\"";
  // Every machine has drives of its own.
  if (!value.isEmpty() && value != caption && control.objectName() != "Drive1")
    text += " = " + value;
  if (told.role() == QAccessible::Graphic) text += QString(" ") + ColourOf(control);
  text += Rows(control, told);
  if (!control.toolTip().isEmpty()) text += " tip \"" + control.toolTip() + "\"";
  const auto* button = qobject_cast<const QPushButton*>(&control);
  const auto state = told.state();
  const std::pair<bool, const char*> states[] = {
      {state.checked, "checked"},
      {state.checkStateMixed, "mixed"},
      {state.disabled, "disabled"},
      {state.readOnly, "read only"},
      {button && button->isDefault(), "default"},
      {control.window()->focusWidget() == &control, "focus"}};
  for (const auto& [holds, what] : states)
    if (holds) text += QString(" ") + what;
  return text;
}

}  // namespace

// Of what has a name, and of a message box its text and buttons, whose places are the toolkit's.
void UiTest::see(const QWidget& window) {
  Lines shown;
  for (const auto* item : window.findChildren<QAction*>())
    if (!item->objectName().isEmpty())
      shown[item->objectName()] =
          "\"" + item->text() + "\"" + (item->isChecked() ? " checked" : "");
  const bool isBox = qobject_cast<const QMessageBox*>(&window);
  for (const auto* control : window.findChildren<QWidget*>()) {
    const auto name = control->objectName();
    if (!control->isVisible() || control->window() != &window) continue;
    if (isBox && (name == "qt_msgbox_label" || qobject_cast<const QPushButton*>(control)))
      shown[control->property("text").toString()] = Line(*control);
    else if (!isBox && !name.isEmpty() && !name.startsWith("qt_"))
      shown[name] = Line(*control) + Looks(*control) + LayoutFaults(*control);
  }
  QStringList order;
  for (auto* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (next->isVisible() && next->focusPolicy() & Qt::TabFocus) order << next->objectName();
  shown["Tab"] = order.join(' ');
  if (isBox) seen_.remove({});  // every one is another one
  shown["Title"] = window.windowTitle() + (window.windowIcon().isNull() ? " NO ICON" : "");
  tell(window.objectName(), shown);
}

// The options in force where they are not the default, those that wait, and the saved file without
// the default bindings.
void UiTest::seeState() {
  Lines held;
  const auto& defaults = Module1::Profiles[0].Slots;
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot) {
    const auto name = QString::fromStdString(defaults[slot].Name);
    const auto& inForce = Module1::EffectiveValues[slot];
    if (!inForce.empty() && inForce != defaults[slot].Value)
      held[name] = QString::fromStdString(inForce);
    if (slot < core::kPerGameSlots && !Module1::StagedOptions[slot].empty())
      held[name + " waiting"] = QString::fromStdString(Module1::StagedOptions[slot]);
  }
  held["OptionsSaved"] = QString::number(Module1::OptionsSaved);
  auto text = "\r\n" + platform::DecodeCodePage(file());
  for (const auto& slot : defaults)
    if (slot.Value.starts_with('"'))
      text = base::ReplaceIgnoringCase(text, "\r\n" + slot.Name + " = " + slot.Value, "");
  for (const auto line : base::Split(text, base::kLineEnd))
    if (!line.empty() && !line.starts_with(";*"))
      held["File"] += QString::fromUtf8(line.data(), static_cast<int>(line.size())) + "|";
  tell("state", held);
}

// In one line, and the same in every run and on every system, whichever tells how a folder is
// spelled.
QString UiTest::plain(QString text) const {
  text.replace(app_, "<app>").replace('\\', '/').replace("/roms", "/ROMs");
  return text.remove('\r').replace('\n', " / ");
}

void UiTest::tell(const QString& place, const Lines& shown) {
  auto& [lines, visible] = seen_[place];
  const auto before = std::exchange(visible, shown.keys());
  QStringList changed;
  QString gone, back;
  for (const auto& name : before)
    if (!shown.contains(name)) gone += " " + name;
  for (auto at = shown.begin(); at != shown.end(); ++at) {
    if (std::exchange(lines[at.key()], at.value()) != at.value())
      changed << at.key() + ": " + at.value();
    else if (!before.contains(at.key()))
      back += " " + at.key();
  }
  if (!gone.isEmpty()) note("gone:" + gone.toStdString());
  if (!back.isEmpty()) note("back:" + back.toStdString());
  for (const auto& line : changed) note(plain(line).toStdString());
}

}  // namespace support
