#include "platform/forms/list_accessible.h"

#include <QAccessibleWidget>
#include <QListWidget>
#include <QPointer>
#include <vector>

namespace forms {
namespace {

class RowInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  RowInterface(QListWidget* list, int row) : list_(list), row_(row) {}

  bool isValid() const override { return list_ && list_->item(row_); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_.data());
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.selectable = state.focusable = true;
    state.selected = item()->isSelected();
    state.focused = list_->hasFocus() && list_->currentRow() == row_;
    state.disabled = !list_->isEnabled() || item()->flags() == Qt::NoItemFlags;
    state.offscreen = !list_->viewport()->rect().intersects(list_->visualItemRect(item()));
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Description)
      return item()->data(Qt::AccessibleDescriptionRole).toString();
    return kind == QAccessible::Name ? item()->text() : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const auto inside = list_->visualItemRect(item());
    return {list_->viewport()->mapToGlobal(inside.topLeft()), inside.size()};
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  // Later, since what it opens may stay for long and the caller waits.
  void doAction(const QString& name) override {
    if (name != pressAction() || !isValid() || state().disabled) return;
    const auto press = [list = list_.data(), row = row_] {
      if (!list->item(row)) return;
      list->setCurrentRow(row);
      Q_EMIT list->itemDoubleClicked(list->item(row));
    };
    QMetaObject::invokeMethod(list_.data(), press, Qt::QueuedConnection);
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override {
    return {QStringLiteral("F2")};
  }

 private:
  QListWidgetItem* item() const { return list_->item(row_); }

  QPointer<QListWidget> list_;
  int row_;
};

class ListInterface : public QAccessibleWidget {
 public:
  explicit ListInterface(QListWidget* list) : QAccessibleWidget(list, QAccessible::List) {}
  ~ListInterface() override {
    for (const auto id : rows_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return list()->count(); }
  QAccessibleInterface* child(int row) const override {
    if (row < 0 || row >= childCount()) return nullptr;
    while (static_cast<int>(rows_.size()) <= row)
      rows_.push_back(QAccessible::registerAccessibleInterface(
          new RowInterface(list(), static_cast<int>(rows_.size()))));
    return QAccessible::accessibleInterface(rows_[static_cast<std::size_t>(row)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
      if (this->child(row) == child) return row;
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const auto* item = list()->itemAt(list()->viewport()->mapFromGlobal(QPoint(x, y)));
    return item ? child(list()->row(item)) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    return list()->hasFocus() ? child(list()->currentRow()) : nullptr;
  }

 private:
  QListWidget* list() const { return static_cast<QListWidget*>(widget()); }

  mutable std::vector<QAccessible::Id> rows_;
};

}  // namespace

void MakeListsAccessible() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* list = qobject_cast<QListWidget*>(object);
    return list ? new ListInterface(list) : nullptr;
  });
}

}  // namespace forms
