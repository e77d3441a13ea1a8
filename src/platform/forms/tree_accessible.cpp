#include <QAccessibleWidget>
#include <QTreeWidget>

#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

// Replaces the toolkit's interface. In that one, a row can be selected although a window in front
// blocks the tree, and the current row always reports that it has the focus. This one has a row for
// each folder whose parents are all open.
class TreeInterface : public QAccessibleWidget, private Rows {
 public:
  explicit TreeInterface(QTreeWidget* tree)
      : QAccessibleWidget(tree, QAccessible::Tree), rows_(*tree, *tree->model(), *this) {
    QObject::connect(tree, &QTreeWidget::currentItemChanged, &connections_,
                     [this] { rows_.announceFocus(); });
    const auto toggled = [this](const QTreeWidgetItem* item) {
      if (item == this->tree()->currentItem()) rows_.announceAsNewRow();
      rows_.announceNamesLater();
    };
    QObject::connect(tree, &QTreeWidget::itemExpanded, &connections_, toggled);
    QObject::connect(tree, &QTreeWidget::itemCollapsed, &connections_, toggled);
  }

  int childCount() const override { return count(); }
  QAccessibleInterface* child(int row) const override { return rows_.row(row); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return rows_.indexOf(child);
  }
  QAccessibleInterface* focusChild() const override { return rows_.focused(); }
  QAccessibleInterface* childAt(int x, int y) const override {
    return child(rowOf(tree()->itemAt(tree()->viewport()->mapFromGlobal(QPoint(x, y)))));
  }

 private:
  int count() const override {
    int count = 0;
    for (const auto* item = first(); item; item = tree()->itemBelow(item)) ++count;
    return count;
  }
  int current() const override { return rowOf(tree()->currentItem()); }
  QModelIndex at(int row) const override { return tree()->indexFromItem(itemOf(row)); }
  RowState stateOf(int row) const override {
    const auto* item = itemOf(row);
    RowState state;
    state.selected = item->isSelected();
    state.expandable = tree()->model()->hasChildren(at(row));
    state.expanded = item->isExpanded();
    state.offscreen = !tree()->viewport()->rect().intersects(tree()->visualItemRect(item));
    return state;
  }
  QRect rectOf(int row) const override {
    const auto inside = tree()->visualItemRect(itemOf(row));
    return {tree()->viewport()->mapToGlobal(inside.topLeft()), inside.size()};
  }
  void choose(int row) override { tree()->setCurrentItem(itemOf(row)); }
  // Does what a double click does.
  void press(int row) override {
    choose(row);
    itemOf(row)->setExpanded(!itemOf(row)->isExpanded());
  }

  QTreeWidgetItem* first() const { return tree() ? tree()->topLevelItem(0) : nullptr; }
  QTreeWidgetItem* itemOf(int row) const {
    auto* item = first();
    while (item && row-- > 0) item = tree()->itemBelow(item);
    return item;
  }
  int rowOf(const QTreeWidgetItem* wanted) const {
    int row = 0;
    for (const auto* item = first(); item; item = tree()->itemBelow(item), ++row)
      if (item == wanted) return row;
    return -1;
  }

  QTreeWidget* tree() const { return qobject_cast<QTreeWidget*>(object()); }

  AccessibleRows rows_;
  QObject connections_;  // the connections end with this interface
};

}  // namespace

void MakeTreesAccessible() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* tree = qobject_cast<QTreeWidget*>(object);
    return tree ? new TreeInterface(tree) : nullptr;
  });
}

}  // namespace forms
