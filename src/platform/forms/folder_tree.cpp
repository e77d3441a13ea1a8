#include "platform/forms/folder_tree.h"

#include <QKeyEvent>
#include <QTreeWidget>

#include "base/quietly.h"
#include "platform/files.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kReadRole = Qt::UserRole + 1;

class NativeTree : public RingedView<QTreeWidget> {
 public:
  using RingedView::RingedView;

 protected:
  // The toolkit would open all folders below the current one, without end where links make a
  // circle.
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Asterisk)
      expand(currentIndex());
    else
      QTreeWidget::keyPressEvent(event);
  }
};

QTreeWidget* Native(QWidget* widget) { return static_cast<QTreeWidget*>(widget); }

std::string PathOf(const QTreeWidgetItem& item) {
  return item.data(0, kPathRole).toByteArray().toStdString();
}

std::string Joined(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') || folder.ends_with('\\') ? folder + name : folder + "/" + name;
}

QTreeWidgetItem* NewItem(const std::string& path, const std::string& name) {
  auto* item = new QTreeWidgetItem({ToQString(name)});
  item->setData(0, kPathRole, QByteArray::fromStdString(path));
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

QTreeWidgetItem* ChildOnTheWay(QTreeWidgetItem& item, const std::string& folder) {
  for (int row = 0; row < item.childCount(); ++row) {
    const auto path = PathOf(*item.child(row));
    if (folder == path || folder.starts_with(path + "/")) return item.child(row);
  }
  return nullptr;
}

}  // namespace

FolderTree::FolderTree(Container& parent, const char* name, const Box& box)
    : Control(new NativeTree(parent.clientArea()), name, box, {}) {
  auto* tree = Native(widget());
  tree->setHeaderHidden(true);
  tree->setUniformRowHeights(true);
  tree->setIndentation(12);
  QObject::connect(tree, &QTreeWidget::itemExpanded, tree,
                   [this](QTreeWidgetItem* item) { readFolder(*item); });
}

void FolderTree::readFolder(QTreeWidgetItem& item) const {
  if (item.data(0, kReadRole).toBool()) return;
  item.setData(0, kReadRole, true);
  QList<QTreeWidgetItem*> children;
  base::Quietly([&] {
    for (const auto& name : platform::SubfolderNames(PathOf(item)))
      if (!accepts || accepts(name)) children.append(NewItem(Joined(PathOf(item), name), name));
  });
  if (children.isEmpty()) item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicator);
  item.addChildren(children);
}

std::string FolderTree::path() const {
  const auto* item = Native(widget())->currentItem();
  return item ? PathOf(*item) : std::string();
}

void FolderTree::setPath(const std::string& root, const std::string& folder) {
  auto* tree = Native(widget());
  tree->clear();
  auto* item = NewItem(root, root);
  tree->addTopLevelItem(item);
  for (auto* next = item; next; next = ChildOnTheWay(*item, folder)) {
    item = next;
    readFolder(*item);
    item->setExpanded(true);
  }
  tree->setCurrentItem(item);
  tree->scrollToItem(item, QAbstractItemView::PositionAtTop);
}

}  // namespace forms
