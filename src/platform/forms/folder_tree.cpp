#include "platform/forms/folder_tree.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTreeWidget>
#include <algorithm>
#include <filesystem>
#include <string>

#include "base/error_boundary.h"
#include "platform/files.h"
#include "platform/forms/native.h"
#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kReadRole = Qt::UserRole + 1;

std::string PathOf(const QTreeWidgetItem& item) {
  return item.data(0, kPathRole).toByteArray().toStdString();
}

std::string Joined(const std::string& folder, const std::string& name) {
  constexpr auto kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
  return folder.ends_with('/') || folder.ends_with(kSeparator) ? folder + name
                                                               : folder + kSeparator + name;
}

QTreeWidgetItem* NewItem(const std::string& path, const std::string& name) {
  auto* item = new QTreeWidgetItem({ToQString(name)});
  item->setData(0, kPathRole, QByteArray::fromStdString(path));
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

class NativeTree : public RingedView<QTreeWidget, 0> {
 public:
  explicit NativeTree(QWidget* parent) : RingedView(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(12);
    header()->setStretchLastSection(false);
    SetTakesEnter(*this);
  }

  QTreeWidgetItem* selectedItem() const { return selectedItems().value(0); }

  // Makes the column as wide as its rows. The tree's width has no room for names at deep levels.
  void widenColumn() { setColumnWidth(0, std::max(sizeHintForColumn(0), viewport()->width())); }
  // Also scrolls sideways to the name. If it does not fit, its beginning is shown.
  void scrollTo(const QModelIndex& index, ScrollHint hint) override {
    widenColumn();
    QTreeWidget::scrollTo(index, hint);
    const int begin = visualRect(index).left() - indentation();
    const int end = visualRect(index).left() + sizeHintForIndex(index).width();
    const int outside = std::max(end - viewport()->width(), 0);
    auto* bar = horizontalScrollBar();
    bar->setValue(bar->value() + std::min(outside, begin));
  }

 protected:
  // At the asterisk key the toolkit would open all folders below the current one, which does not
  // end if links form a circle.
  void keyPressEvent(QKeyEvent* event) override {
    const auto key = event->key();
    const auto* item = currentItem();
    if (key == Qt::Key_Asterisk || key == Qt::Key_Return || key == Qt::Key_Enter)
      expand(currentIndex());
    else if (key == Qt::Key_Left && item && item->isExpanded() && item->childCount() > 0)
      collapse(currentIndex());  // the toolkit would scroll instead if it can
    else
      QTreeWidget::keyPressEvent(event);
    // With nothing to open, the toolkit has scrolled away from the current folder.
    scrollTo(currentIndex(), EnsureVisible);
  }
  // The toolkit's announcements name rows of its own interface, which tree_accessible.cpp replaces.
  void currentChanged(const QModelIndex& now, const QModelIndex& before) override {
    QAbstractItemView::currentChanged(now, before);  // NOLINT: skips QTreeWidget's announcement
  }
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override {
    QAbstractItemView::selectionChanged(now, before);  // NOLINT: skips QTreeWidget's announcement
  }
  void focusInEvent(QFocusEvent* event) override {
    RingedView::focusInEvent(event);
    AnnounceRowLater(*this);
  }
  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const auto* item = itemAt(help.pos());
    ShowPlainToolTip(help, item ? ToQString(PathOf(*item)) : QString(), *this);
    return true;
  }
  // One folder is always selected.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* /*event*/) const override {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }
  void resizeEvent(QResizeEvent* event) override {
    RingedView::resizeEvent(event);
    widenColumn();
  }
  void showEvent(QShowEvent* event) override {
    QTreeWidget::showEvent(event);
    scrollTo(currentIndex(), EnsureVisible);
  }
};

NativeTree* Native(QWidget* widget) { return static_cast<NativeTree*>(widget); }

QTreeWidgetItem* ChildContaining(QTreeWidgetItem& item, const std::string& folder) {
  for (int row = 0; row < item.childCount(); ++row) {
    if (platform::IsWithin(folder, PathOf(*item.child(row)))) return item.child(row);
  }
  return nullptr;
}

}  // namespace

FolderTree::FolderTree(Container& parent, const char* name, const Box& box)
    : Control(new NativeTree(parent.clientArea()), name, box, {}) {
  auto* tree = static_cast<NativeTree*>(widget());
  QObject::connect(tree, &QTreeWidget::itemExpanded, tree, [this, tree](QTreeWidgetItem* item) {
    readFolder(*item);
    tree->widenColumn();
  });
  QObject::connect(tree, &QTreeWidget::itemCollapsed, tree, [tree](QTreeWidgetItem* item) {
    for (auto* above = tree->currentItem(); above; above = above->parent())
      if (above == item) tree->setCurrentItem(item);
    tree->widenColumn();
  });
}

void FolderTree::readFolder(QTreeWidgetItem& item) const {
  if (item.data(0, kReadRole).toBool()) return;
  item.setData(0, kReadRole, true);
  QList<QTreeWidgetItem*> children;
  base::RunGuarded([&] {
    for (const auto& name : platform::SubfolderNames(PathOf(item)))
      if (!accepts || accepts(name)) children.append(NewItem(Joined(PathOf(item), name), name));
  });
  if (children.isEmpty()) item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicator);
  item.addChildren(children);
}

std::string FolderTree::path() const {
  const auto* item = Native(widget())->selectedItem();
  return item ? PathOf(*item) : std::string();
}

void FolderTree::setPath(const std::string& root, const std::string& folder) {
  auto* tree = Native(widget());
  tree->clear();
  auto* item = NewItem(root, root);
  tree->addTopLevelItem(item);
  for (auto* next = item; next; next = ChildContaining(*item, folder)) {
    item = next;
    readFolder(*item);
    item->setExpanded(true);
  }
  tree->setCurrentItem(item);
  tree->scrollToItem(item, QAbstractItemView::PositionAtTop);
}

}  // namespace forms
