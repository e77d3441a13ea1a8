#include "platform/forms/list_accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <memory>
#include <utility>
#include <vector>

#include "platform/forms/accessible_text.h"
#include "platform/forms/input_guard.h"

namespace forms {
namespace {

// A list or a drop-down, with its rows as children. Changed names of rows are announced.
class RowsInterface : public QAccessibleWidget {
 public:
  RowsInterface(QWidget* widget, QAccessible::Role role, QAbstractItemModel* model)
      : QAccessibleWidget(widget, role), model_(model) {
    const auto changed = [this] { announceNamesLater(); };
    QObject::connect(model, &QAbstractItemModel::dataChanged, &connections_, changed);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, &connections_, changed);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, &connections_, changed);
    QObject::connect(model, &QAbstractItemModel::modelReset, &connections_, changed);
  }
  ~RowsInterface() override {
    for (const auto& row : rows_) QAccessible::deleteAccessibleInterface(row.id);
    for (const auto id : former_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return model_ ? model_->rowCount() : 0; }
  QAccessibleInterface* child(int row) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override {
    return widget()->hasFocus() ? child(currentRow()) : nullptr;
  }

  virtual int currentRow() const = 0;
  virtual QAccessible::State stateOf(int row) const = 0;
  virtual QRect rectOf(int row) const = 0;
  virtual void press(int row) = 0;
  // Chooses the row without doing what a press of it does.
  virtual void choose(int row) = 0;

  QString textOf(int row, QAccessible::Text kind) const {
    const auto index = model_->index(row, 0);
    if (kind == QAccessible::Description)
      return index.data(Qt::AccessibleDescriptionRole).toString();
    if (kind != QAccessible::Name) return {};
    const auto shown = index.data().toString();
    return shown.isEmpty() ? index.data(Qt::AccessibleTextRole).toString() : shown;
  }

 protected:
  void announceFocus() const {
    if (auto* row = focusChild()) {
      QAccessibleEvent focus(row, QAccessible::Focus);
      QAccessible::updateAccessibility(&focus);
    }
  }

  QObject connections_;  // the connections end with this interface

 private:
  struct Row {
    QAccessible::Id id;
    QString announced;  // the name that was last announced
  };

  // Waits until all changes of the present event are done.
  void announceNamesLater() {
    if (rows_.empty() || std::exchange(isScheduled_, true)) return;
    QMetaObject::invokeMethod(
        &connections_, [this] { announceNames(); }, Qt::QueuedConnection);
  }
  void announceNames() {
    isScheduled_ = false;
    for (auto& row : rows_) {
      auto* interface = QAccessible::accessibleInterface(row.id);
      if (!interface->isValid()) continue;
      const auto before = std::exchange(row.announced, interface->text(QAccessible::Name));
      if (row.announced == before) continue;
      QAccessibleEvent event(interface, QAccessible::NameChanged);
      QAccessible::updateAccessibility(&event);
      if (interface->state().focused) announceAsNewRow(row);
    }
  }
  // Screen readers ignore a changed name of a row that they know, but speak a new row. So the row
  // gets a new interface.
  void announceAsNewRow(Row& row);

  QPointer<QAbstractItemModel> model_;
  mutable std::vector<Row> rows_;
  std::vector<QAccessible::Id> former_;  // replaced interfaces, which clients may still use
  bool isScheduled_ = false;
};

class RowInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  RowInterface(QWidget* control, int row)
      : control_(control), row_(row), attributes_([this]() -> AttributeValues {
          if (!isValid()) return {};
          return {{QStringLiteral("posinset"), QString::number(row_ + 1)},
                  {QStringLiteral("setsize"), QString::number(rows().childCount())}};
        }) {}

  int row() const { return row_; }
  // To be called when another interface has replaced this one.
  void markReplaced() { isReplaced_ = true; }

  bool isValid() const override { return control_ && row_ < rows().childCount(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(control_.data());
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
    state = rows().stateOf(row_);
    state.selectable = state.focusable = true;
    state.focused = control_->hasFocus() && rows().currentRow() == row_;
    if (!control_->isEnabled()) state.disabled = true;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return isValid() ? rows().textOf(row_, kind) : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override { return isValid() && !isReplaced_ ? rows().rectOf(row_) : QRect(); }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : attributes_.cast(type);
  }

  // On Windows, a request to select a row arrives as the toggle action.
  QStringList actionNames() const override { return {pressAction(), toggleAction()}; }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name) || !isValid() || state().disabled) return;
    const bool presses = name == pressAction();
    PressLater(*control_, [this, presses] {
      if (!isValid()) return;
      if (presses)
        rows().press(row_);
      else
        rows().choose(row_);
    });
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override {
    return rows().role() == QAccessible::List ? QStringList(QStringLiteral("F2")) : QStringList();
  }

 private:
  RowsInterface& rows() const { return static_cast<RowsInterface&>(*parent()); }

  QPointer<QWidget> control_;
  int row_;
  AccessibleAttributes attributes_;
  bool isReplaced_ = false;
};

int RowsInterface::indexOfChild(const QAccessibleInterface* child) const {
  const bool own = child && child->role() == QAccessible::ListItem && child->parent() == this;
  return own ? static_cast<const RowInterface*>(child)->row() : -1;
}

void RowsInterface::announceAsNewRow(Row& row) {
  former_.push_back(row.id);
  static_cast<RowInterface*>(QAccessible::accessibleInterface(row.id))->markReplaced();
  row.id = QAccessible::registerAccessibleInterface(new RowInterface(widget(), currentRow()));
  announceFocus();
}

QAccessibleInterface* RowsInterface::child(int row) const {
  if (row < 0 || row >= childCount()) return nullptr;
  while (static_cast<int>(rows_.size()) <= row) {
    const auto next = static_cast<int>(rows_.size());
    rows_.push_back({QAccessible::registerAccessibleInterface(new RowInterface(widget(), next)),
                     textOf(next, QAccessible::Name)});
  }
  return QAccessible::accessibleInterface(rows_[static_cast<std::size_t>(row)].id);
}

class ListInterface : public RowsInterface {
 public:
  explicit ListInterface(QListWidget* list)
      : RowsInterface(list, QAccessible::List, list->model()),
        attributes_([this]() -> AttributeValues {
          return {{QStringLiteral("setsize"), QString::number(childCount())}};
        }) {}

  // Without the attribute for the number of rows, screen readers count the visible ones.
  void* interface_cast(QAccessible::InterfaceType type) override {
    auto* attributes = attributes_.cast(type);
    return attributes ? attributes : RowsInterface::interface_cast(type);
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const auto* item = list()->itemAt(list()->viewport()->mapFromGlobal(QPoint(x, y)));
    return item ? child(list()->row(item)) : nullptr;
  }
  int currentRow() const override { return list()->currentRow(); }
  QAccessible::State stateOf(int row) const override {
    QAccessible::State state;
    const auto* item = list()->item(row);
    state.selected = item->isSelected();
    state.disabled = item->flags() == Qt::NoItemFlags;
    state.offscreen = !list()->viewport()->rect().intersects(list()->visualItemRect(item));
    return state;
  }
  QRect rectOf(int row) const override {
    const auto inside = list()->visualItemRect(list()->item(row));
    return {list()->viewport()->mapToGlobal(inside.topLeft()), inside.size()};
  }
  // Does what a double click does.
  void press(int row) override {
    choose(row);
    Q_EMIT list()->itemDoubleClicked(list()->item(row));
  }
  void choose(int row) override { list()->setCurrentRow(row); }

 private:
  QListWidget* list() const { return static_cast<QListWidget*>(widget()); }

  AccessibleAttributes attributes_;
};

// Replaces the toolkit's interface, which reports a drop-down's value as its name, and does not
// announce a row that is chosen by keys while the list is closed.
class ComboInterface : public RowsInterface {
 public:
  explicit ComboInterface(QComboBox* box)
      : RowsInterface(box, QAccessible::ComboBox, box->model()),
        shown_(NewAccessibleText([box] { return box->currentText(); })),
        attributes_([box]() -> AttributeValues {
          return {{QStringLiteral("valuetext"), box->currentText()}};
        }) {
    const auto announceRow = [this] {
      if (!this->box()->view()->isVisible()) announceFocus();
    };
    QObject::connect(box, &QComboBox::currentIndexChanged, &connections_, announceRow,
                     Qt::QueuedConnection);
  }

  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int currentRow() const override { return box()->currentIndex(); }
  QAccessible::State stateOf(int row) const override {
    QAccessible::State state;
    state.selected = row == currentRow();
    return state;
  }
  QRect rectOf(int /*row*/) const override { return rect(); }
  void press(int row) override { choose(row); }
  void choose(int row) override { box()->setCurrentIndex(row); }

  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = box()->view()->isVisible();
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? box()->currentText() : QAccessibleWidget::text(kind);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return shown_.get();
    auto* attributes = attributes_.cast(type);
    return attributes ? attributes : QAccessibleWidget::interface_cast(type);
  }
  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (box()->isEnabled()) PressLater(*box(), [box = box()] { box->showPopup(); });
  }

 private:
  QComboBox* box() const { return static_cast<QComboBox*>(widget()); }

  std::unique_ptr<QAccessibleTextInterface> shown_;
  AccessibleAttributes attributes_;
};

}  // namespace

void MakeListsAccessible() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    if (auto* list = qobject_cast<QListWidget*>(object)) return new ListInterface(list);
    if (auto* box = qobject_cast<QComboBox*>(object)) return new ComboInterface(box);
    return nullptr;
  });
}

}  // namespace forms
