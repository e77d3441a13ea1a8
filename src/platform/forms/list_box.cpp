#include "platform/forms/list_box.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>
#include <algorithm>
#include <vector>

#include "base/failure.h"
#include "base/text.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

constexpr int kDeleteCode = 46;
constexpr int kTextMargin = 6;

class NativeList : public RingedView<QListWidget> {
 public:
  NativeList(QWidget* parent, const ListBox& list) : RingedView(parent), list_(list) {
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
  }

 protected:
  // A text that is cut off can be read in full.
  bool viewportEvent(QEvent* event) override {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
      auto* help = static_cast<QHelpEvent*>(event);
      const auto* item = itemAt(help->pos());
      const bool cut =
          item && viewport()->width() < fontMetrics().horizontalAdvance(item->text()) + kTextMargin;
      QToolTip::showText(help->globalPos(), cut ? PlainToolTip(item->text()) : QString(), this);
      return true;
    }
    return QListWidget::viewportEvent(event);
  }
  // One row at a time, and no click or key takes the selection away.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* /*event*/) const override {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }
  // Assistive technology is told of the rows of the list in focus only, and after the list of the
  // row that it was entered at.
  void currentChanged(const QModelIndex& now, const QModelIndex& before) override {
    if (hasFocus())
      QListWidget::currentChanged(now, before);
    else
      QAbstractItemView::currentChanged(now, before);  // NOLINT: not what the list adds to it
  }
  void focusInEvent(QFocusEvent* event) override {
    RingedView::focusInEvent(event);
    const auto tellRow = [this] {
      if (!hasFocus() || currentRow() < 0) return;
      QAccessibleEvent focus(this, QAccessible::Focus);
      focus.setChild(currentRow());
      QAccessible::updateAccessibility(&focus);
    };
    QMetaObject::invokeMethod(this, tellRow, Qt::QueuedConnection);
  }
  void mousePressEvent(QMouseEvent* event) override {
    const auto* pressed = itemAt(event->pos());
    const bool again = pressed && pressed->isSelected();
    QListWidget::mousePressEvent(event);
    if (again) Raise(list_.onClick);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    auto* item = itemAt(event->pos());
    if (item && item->flags() != Qt::NoItemFlags && event->button() == Qt::LeftButton)
      Q_EMIT itemDoubleClicked(item);
  }
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool edits = event->key() == Qt::Key_F2 || (enter && property("takesEnter").toBool());
    if (edits && list_.selectedRow() >= 0) {
      Q_EMIT itemDoubleClicked(item(list_.selectedRow()));
      return;
    }
    if (event->key() == Qt::Key_Delete) Raise(list_.onKeyDown, kDeleteCode);
    QListWidget::keyPressEvent(event);
  }

 private:
  const ListBox& list_;
};

NativeList* Native(QWidget* widget) { return static_cast<NativeList*>(widget); }

QListWidgetItem& ItemAt(QWidget* widget, int row) {
  auto* item = Native(widget)->item(row);
  if (!item) throw base::Failure("no such row");
  return *item;
}

}  // namespace

ListBox::ListBox(Container& parent, const char* name, const Box& box, Sorting sorting,
                 const FontStyle& font)
    : Control(new NativeList(parent.clientArea(), *this), name, box, font), sorting_(sorting) {
  auto* list = Native(widget());
  QObject::connect(list, &QListWidget::itemSelectionChanged, list, [this] {
    if (selectedRow() >= 0) Raise(onClick);
  });
  QObject::connect(list, &QListWidget::itemDoubleClicked, list, [this] { Raise(onDblClick); });
  QObject::connect(list->verticalScrollBar(), &QScrollBar::valueChanged, list,
                   [this] { Raise(onScroll); });
}

void ListBox::clear() {
  const QSignalBlocker quiet(widget());
  Native(widget())->clear();
  keys_.clear();
}

int ListBox::add(const std::string& text) {
  auto at = keys_.end();
  if (sorting_ == Sorting::IgnoringCase) {
    auto key = base::FoldCase(text);
    at = std::upper_bound(keys_.begin(), keys_.end(), key);
    at = keys_.insert(at, std::move(key));
  } else {
    at = keys_.emplace(at);
  }
  const int row = static_cast<int>(at - keys_.begin());
  const QSignalBlocker quiet(widget());
  Native(widget())->insertItem(row, ToQString(text));
  return row;
}

void ListBox::remove(int row) {
  const QSignalBlocker quiet(widget());
  const bool wasSelected = ItemAt(widget(), row).isSelected();
  delete Native(widget())->takeItem(row);
  keys_.erase(keys_.begin() + row);
  if (wasSelected) select(-1);
}

void ListBox::setText(int row, const std::string& text) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setText(ToQString(text));
}

void ListBox::describe(int row, const std::string& text) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setData(Qt::AccessibleDescriptionRole, ToQString(text));
}

void ListBox::disable(int row) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setFlags(Qt::NoItemFlags);
}

int ListBox::count() const { return Native(widget())->count(); }

std::string ListBox::text(int row) const { return ItemAt(widget(), row).text().toStdString(); }

int ListBox::itemData(int row) const { return ItemAt(widget(), row).data(Qt::UserRole).toInt(); }

void ListBox::setItemData(int row, int data) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setData(Qt::UserRole, data);
}

int ListBox::selectedRow() const {
  const auto selected = Native(widget())->selectionModel()->selectedRows();
  return selected.isEmpty() ? -1 : selected.first().row();
}

void ListBox::select(int row) {
  if (row >= 0) ItemAt(widget(), row);
  if (row == selectedRow()) return;
  Native(widget())->setCurrentRow(
      row, row < 0 ? QItemSelectionModel::Clear : QItemSelectionModel::ClearAndSelect);
}

void ListBox::hideScrollBar() {
  Native(widget())->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListBox::takeEnter() { widget()->setProperty("takesEnter", true); }

int ListBox::topRow() const { return Native(widget())->verticalScrollBar()->value(); }

void ListBox::setTopRow(int row) {
  Native(widget())->doItemsLayout();
  Native(widget())->verticalScrollBar()->setValue(row);
}

}  // namespace forms
