#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <memory>

#include "platform/forms/accessible_text.h"
#include "platform/forms/input_guard.h"
#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

// Replaces the toolkit's interface, which reports a drop-down's value as its name, and does not
// announce a row that is chosen by keys while the list is closed.
class ComboInterface : public QAccessibleWidget, private Rows {
 public:
  explicit ComboInterface(QComboBox* box)
      : QAccessibleWidget(box, QAccessible::ComboBox),
        rows_(*box, *box->model(), *this),
        shown_(NewAccessibleText([box] { return box->currentText(); })),
        attributes_([box]() -> AttributeValues {
          return {{QStringLiteral("valuetext"), box->currentText()}};
        }) {
    const auto announceRow = [this] {
      if (!isOpen()) rows_.announceFocus();
    };
    QObject::connect(box, &QComboBox::currentIndexChanged, &connection_, announceRow,
                     Qt::QueuedConnection);
  }

  int childCount() const override { return count(); }
  QAccessibleInterface* child(int row) const override { return rows_.row(row); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return rows_.indexOf(child);
  }
  QAccessibleInterface* focusChild() const override { return rows_.focused(); }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = isOpen();
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
  int count() const override { return box() ? box()->count() : 0; }
  int current() const override { return box()->currentIndex(); }
  QModelIndex at(int row) const override { return box()->model()->index(row, 0); }
  RowState stateOf(int row) const override {
    RowState state;
    state.selected = row == current();
    return state;
  }
  QRect rectOf(int /*row*/) const override { return rect(); }
  void choose(int row) override { box()->setCurrentIndex(row); }

  bool isOpen() const { return box()->view()->isVisible(); }
  QComboBox* box() const { return qobject_cast<QComboBox*>(object()); }

  AccessibleRows rows_;
  std::unique_ptr<QAccessibleTextInterface> shown_;
  AccessibleAttributes attributes_;
  QObject connection_;  // the connection ends with this interface
};

}  // namespace

void MakeDropDownsAccessible() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* box = qobject_cast<QComboBox*>(object);
    return box ? new ComboInterface(box) : nullptr;
  });
}

}  // namespace forms
