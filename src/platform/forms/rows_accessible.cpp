#include "platform/forms/rows_accessible.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>
#include <utility>
#include <vector>

#include "platform/forms/accessible_text.h"
#include "platform/forms/input_guard.h"

namespace forms {
namespace {

class RowInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  RowInterface(QWidget& control, Rows& rows, int row)
      : control_(&control), rows_(rows), row_(row), attributes_([this]() -> AttributeValues {
          if (!isValid()) return {};
          return {{QStringLiteral("posinset"), QString::number(row_ + 1)},
                  {QStringLiteral("setsize"), QString::number(rows_.count())}};
        }) {}

  // The row's number, or -1 if it does not belong to `rows`.
  int indexIn(const Rows& rows) const { return &rows == &rows_ ? row_ : -1; }
  // To be called when another interface has replaced this one.
  void markReplaced() { isReplaced_ = true; }

  bool isValid() const override { return control_ && row_ < rows_.count(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(control_.data());
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  QAccessible::Role role() const override {
    return parent()->role() == QAccessible::Tree ? QAccessible::TreeItem : QAccessible::ListItem;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    const auto is = rows_.stateOf(row_);
    state.selected = is.selected;
    state.offscreen = is.offscreen;
    state.expandable = is.expandable;
    state.expanded = is.expanded;
    state.collapsed = is.expandable && !is.expanded;
    state.disabled = is.disabled || !control_->isEnabled();
    state.invisible = !control_->isVisible();
    state.selectable = state.focusable = true;
    state.focused = control_->hasFocus() && rows_.current() == row_;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    const auto index = rows_.at(row_);
    if (kind == QAccessible::Description)
      return index.data(Qt::AccessibleDescriptionRole).toString();
    if (kind != QAccessible::Name) return {};
    const auto shown = index.data().toString();
    return shown.isEmpty() ? index.data(Qt::AccessibleTextRole).toString() : shown;
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override { return isValid() && !isReplaced_ ? rows_.rectOf(row_) : QRect(); }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : attributes_.cast(type);
  }

  // On Windows, a request to select a row arrives as the toggle action of that row and then of all
  // rows that are still selected. The latter must not undo it.
  QStringList actionNames() const override { return {pressAction(), toggleAction()}; }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name) || !isValid() || state().disabled) return;
    const bool presses = name == pressAction();
    if (!presses && rows_.stateOf(row_).selected) return;
    PressLater(*control_, [this, presses] {
      if (!isValid()) return;
      if (presses)
        rows_.press(row_);
      else
        rows_.choose(row_);
    });
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override {
    return parent()->role() == QAccessible::List ? QStringList(QStringLiteral("F2"))
                                                 : QStringList();
  }

 private:
  QPointer<QWidget> control_;
  Rows& rows_;
  int row_;
  AccessibleAttributes attributes_;
  bool isReplaced_ = false;
};

}  // namespace

void AnnounceFocus(QAccessibleInterface* row) {
  if (!row) return;
  QAccessibleEvent focus(row, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
}

void AnnounceRowLater(QWidget& control) {
  const auto announce = [&control] {
    if (!QAccessible::isActive() || !control.hasFocus()) return;
    if (auto* rows = QAccessible::queryAccessibleInterface(&control))
      AnnounceFocus(rows->focusChild());
  };
  QMetaObject::invokeMethod(&control, announce, Qt::QueuedConnection);
}

class AccessibleRows::Children : public QObject {
 public:
  Children(QWidget& control, const QAbstractItemModel& model, Rows& rows)
      : control_(control), rows_(rows) {
    const auto changed = [this] { announceNamesLater(); };
    const auto dataChanged = [this](const auto&, const auto&, const QList<int>& roles) {
      roles.contains(Qt::AccessibleDescriptionRole) ? announceDescription() : announceNamesLater();
    };
    connect(&model, &QAbstractItemModel::dataChanged, this, dataChanged);
    connect(&model, &QAbstractItemModel::rowsInserted, this, changed);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, changed);
    connect(&model, &QAbstractItemModel::modelReset, this, changed);
  }
  ~Children() override {
    for (const auto& child : children_) QAccessible::deleteAccessibleInterface(child.id);
    for (const auto id : former_) QAccessible::deleteAccessibleInterface(id);
  }

  QAccessibleInterface* row(int row) {
    if (row < 0 || row >= rows_.count()) return nullptr;
    while (static_cast<int>(children_.size()) <= row) {
      const auto id = registerRow(static_cast<int>(children_.size()));
      children_.push_back({id, QAccessible::accessibleInterface(id)->text(QAccessible::Name)});
    }
    return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(row)].id);
  }
  int indexOf(const QAccessibleInterface* row) const {
    const auto* own = dynamic_cast<const RowInterface*>(row);
    return own ? own->indexIn(rows_) : -1;
  }
  QAccessibleInterface* focused() { return control_.hasFocus() ? row(rows_.current()) : nullptr; }

  void announceNamesLater() {
    if (children_.empty() || std::exchange(isScheduled_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { announceNames(); }, Qt::QueuedConnection);
  }
  void announceAsNewRow() {
    auto* known = static_cast<RowInterface*>(focused());
    if (!known) return;
    known->markReplaced();
    auto& id = children_[static_cast<std::size_t>(rows_.current())].id;
    former_.push_back(id);
    id = registerRow(rows_.current());
    AnnounceFocus(focused());
  }

 private:
  // Once the window has the focus again, which a dialog may have had until now.
  void announceDescription() {
    constexpr int kMilliseconds = 1000;
    QTimer::singleShot(kMilliseconds, this, [this] { announceAsNewRow(); });
  }

  struct Child {
    QAccessible::Id id;
    QString announced;  // the name that was last announced
  };

  QAccessible::Id registerRow(int row) {
    return QAccessible::registerAccessibleInterface(new RowInterface(control_, rows_, row));
  }
  void announceNames() {
    isScheduled_ = false;
    for (auto& child : children_) {
      auto* interface = QAccessible::accessibleInterface(child.id);
      if (!interface->isValid()) continue;
      const auto before = std::exchange(child.announced, interface->text(QAccessible::Name));
      if (child.announced == before) continue;
      QAccessibleEvent event(interface, QAccessible::NameChanged);
      QAccessible::updateAccessibility(&event);
      if (interface->state().focused) announceAsNewRow();
    }
  }

  QWidget& control_;
  Rows& rows_;
  std::vector<Child> children_;
  std::vector<QAccessible::Id> former_;  // replaced interfaces, which clients may still use
  bool isScheduled_ = false;
};

AccessibleRows::AccessibleRows(QWidget& control, const QAbstractItemModel& model, Rows& rows)
    : children_(std::make_unique<Children>(control, model, rows)) {}

AccessibleRows::~AccessibleRows() = default;

QAccessibleInterface* AccessibleRows::row(int row) const { return children_->row(row); }

int AccessibleRows::indexOf(const QAccessibleInterface* row) const {
  return children_->indexOf(row);
}

QAccessibleInterface* AccessibleRows::focused() const { return children_->focused(); }

void AccessibleRows::announceFocus() const { AnnounceFocus(children_->focused()); }

void AccessibleRows::announceAsNewRow() { children_->announceAsNewRow(); }

void AccessibleRows::announceNamesLater() { children_->announceNamesLater(); }

}  // namespace forms
