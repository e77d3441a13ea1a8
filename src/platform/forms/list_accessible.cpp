#include <QAccessibleWidget>
#include <QListWidget>

#include "platform/forms/accessible_text.h"
#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

class ListInterface : public QAccessibleWidget, private Rows {
 public:
  explicit ListInterface(QListWidget* list)
      : QAccessibleWidget(list, QAccessible::List),
        rows_(*list, *list->model(), *this),
        attributes_([this]() -> AttributeValues {
          return {{QStringLiteral("setsize"), QString::number(childCount())}};
        }) {}

  // Without the attribute for the number of rows, screen readers count the visible ones.
  void* interface_cast(QAccessible::InterfaceType type) override {
    auto* attributes = attributes_.cast(type);
    return attributes ? attributes : QAccessibleWidget::interface_cast(type);
  }

  int childCount() const override { return count(); }
  QAccessibleInterface* child(int row) const override { return rows_.row(row); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return rows_.indexOf(child);
  }
  QAccessibleInterface* focusChild() const override { return rows_.focused(); }
  QAccessibleInterface* childAt(int x, int y) const override {
    const auto* item = list()->itemAt(list()->viewport()->mapFromGlobal(QPoint(x, y)));
    return item ? child(list()->row(item)) : nullptr;
  }

 private:
  int count() const override { return list() ? list()->count() : 0; }
  int current() const override { return list()->currentRow(); }
  QModelIndex at(int row) const override { return list()->model()->index(row, 0); }
  RowState stateOf(int row) const override {
    const auto* item = list()->item(row);
    RowState state;
    state.selected = item->isSelected();
    state.disabled = item->flags() == Qt::NoItemFlags;
    state.offscreen = !list()->viewport()->rect().intersects(list()->visualItemRect(item));
    return state;
  }
  QRect rectOf(int row) const override {
    const auto inside = list()->visualItemRect(list()->item(row));
    return {list()->viewport()->mapToGlobal(inside.topLeft()), inside.size()};
  }
  void choose(int row) override { list()->setCurrentRow(row); }
  // Does what a double click does.
  void press(int row) override {
    choose(row);
    Q_EMIT list()->itemDoubleClicked(list()->item(row));
  }

  QListWidget* list() const { return qobject_cast<QListWidget*>(object()); }

  AccessibleRows rows_;
  AccessibleAttributes attributes_;
};

}  // namespace

void MakeListsAccessible() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* list = qobject_cast<QListWidget*>(object);
    return list ? new ListInterface(list) : nullptr;
  });
}

}  // namespace forms
