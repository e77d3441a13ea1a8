#include "platform/forms/list_box.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <string>

#include "base/error_boundary.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/forms/native.h"
#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

constexpr int kTextMargin = 6;
constexpr int kQuietRole = Qt::UserRole + 1;

class Row : public QListWidgetItem {
 public:
  Row(const ListBox& list, const QString& text) : QListWidgetItem(text), list_(list) {}

  QVariant data(int role) const override {
    if (role == Qt::AccessibleTextRole && text().isEmpty()) return ToQString(list_.emptyRowName);
    if (role != Qt::AccessibleDescriptionRole || !list_.descriptionOf)
      return QListWidgetItem::data(role);
    std::string description;
    base::RunGuarded([&] { description = list_.descriptionOf(listWidget()->row(this)); });
    return ToQString(description);
  }

 private:
  const ListBox& list_;
};

class RowPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(kQuietRole).toBool()) return;
    constexpr double kTextContrast = 6;  // 4.5 is required; smoothing takes a quarter of it
    auto& palette = option->palette;
    for (const auto& [text, background] :
         {std::pair(QPalette::Text, QPalette::Base),
          std::pair(QPalette::HighlightedText, QPalette::Highlight)})
      palette.setColor(
          text, WithContrast(palette.color(background), palette.color(background), kTextContrast));
  }
};

class NativeList : public RingedView<QListWidget, 2> {
 public:
  NativeList(QWidget* parent, const ListBox& list) : RingedView(parent), list_(list) {
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new RowPainter(this));
  }

  bool takesF2 = false;

 protected:
  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
      return QListWidget::viewportEvent(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const auto* item = itemAt(help.pos());
    ShowPlainToolTip(help, item ? toolTipOf(*item) : QString(), *this);
    return true;
  }
  // A click or key selects one row and never removes the selection.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* /*event*/) const override {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }
  // Announces a row to assistive technology only if the list has the focus.
  void currentChanged(const QModelIndex& now, const QModelIndex& before) override {
    if (hasFocus())
      QListWidget::currentChanged(now, before);
    else
      QAbstractItemView::currentChanged(now, before);  // NOLINT: skips QListWidget's announcement
  }
  void focusInEvent(QFocusEvent* event) override {
    RingedView::focusInEvent(event);
    chooseFocusedRow(event->reason());
    AnnounceRowLater(*this);
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
    const bool edits = (event->key() == Qt::Key_F2 && takesF2) || (enter && TakesEnter(*this));
    if (edits && list_.selectedRow() >= 0) {
      Q_EMIT itemDoubleClicked(item(list_.selectedRow()));
      return;
    }
    if (event->key() == Qt::Key_Delete) Raise(list_.onDelete);
    QListWidget::keyPressEvent(event);
  }

 private:
  // The toolkit makes the first row the current one without selecting it. Keys would then start
  // from a row that is not the selected one.
  void chooseFocusedRow(Qt::FocusReason reason) {
    if (list_.selectedRow() >= 0) return;
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
      setCurrentRow(currentRow(), QItemSelectionModel::ClearAndSelect);
    else
      setCurrentRow(-1, QItemSelectionModel::NoUpdate);
  }
  QString toolTipOf(const QListWidgetItem& item) const {
    if (list_.toolTipOf) {
      std::string tip;
      base::RunGuarded([&] { tip = list_.toolTipOf(row(&item)); });
      return ToQString(tip);
    }
    const auto needed = fontMetrics().horizontalAdvance(item.text()) + kTextMargin;
    return viewport()->width() < needed ? item.text() : QString();
  }

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
  setToolTip({});
}

int ListBox::placeOf(const std::string& text) const {
  if (sorting_ == Sorting::No) return count();
  const auto key = base::FoldCase(text);
  int first = 0;
  for (int last = count(); first < last;) {
    const int middle = (first + last) / 2;
    if (key < base::FoldCase(this->text(middle)))
      last = middle;
    else
      first = middle + 1;
  }
  return first;
}

int ListBox::add(const std::string& text) {
  const int row = placeOf(text);
  const QSignalBlocker quiet(widget());
  Native(widget())->insertItem(row, new Row(*this, ToQString(text)));
  return row;
}

void ListBox::remove(int row) {
  const QSignalBlocker quiet(widget());
  const bool wasSelected = ItemAt(widget(), row).isSelected();
  delete Native(widget())->takeItem(row);
  if (wasSelected) select(-1);
  if (count() == 0) setToolTip({});
}

void ListBox::setText(int row, const std::string& text) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setText(ToQString(text));
}

void ListBox::makeQuiet(int row) {
  const QSignalBlocker quiet(widget());
  ItemAt(widget(), row).setData(kQuietRole, true);
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

void ListBox::announceDescription() {
  auto* model = Native(widget())->model();
  const auto row = model->index(selectedRow(), 0);
  Q_EMIT model->dataChanged(row, row, {Qt::AccessibleDescriptionRole});
}

void ListBox::hideScrollBar() {
  Native(widget())->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListBox::takeF2() { Native(widget())->takesF2 = true; }

void ListBox::takeEnter() { SetTakesEnter(*widget()); }

int ListBox::topRow() const { return Native(widget())->verticalScrollBar()->value(); }

void ListBox::setTopRow(int row) {
  Native(widget())->doItemsLayout();
  Native(widget())->verticalScrollBar()->setValue(row);
}

}  // namespace forms
