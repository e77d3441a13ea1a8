// What assistive technology is told of the rows of lists, drop-downs and trees. Shared by the
// sources of this folder; no other code includes it.
#pragma once

#include <memory>

class QAbstractItemModel;
class QAccessibleInterface;
class QModelIndex;
class QRect;
class QWidget;

namespace forms {

// Register the interfaces, once, when the application starts.
void MakeListsAccessible();
void MakeDropDownsAccessible();
void MakeTreesAccessible();

struct RowState {
  bool selected = false, disabled = false, offscreen = false;
  bool expandable = false, expanded = false;
};

// What a control knows of the rows that it shows. They count from 0; -1 is none.
class Rows {
 public:
  virtual int count() const = 0;
  virtual int current() const = 0;
  virtual QModelIndex at(int row) const = 0;
  virtual RowState stateOf(int row) const = 0;
  virtual QRect rectOf(int row) const = 0;  // pixels of the screen
  virtual void choose(int row) = 0;
  virtual void press(int row) { choose(row); }

 protected:
  Rows() = default;
  ~Rows() = default;
};

// The rows as children of the control that `rows` belongs to. Changed names are announced.
class AccessibleRows {
 public:
  AccessibleRows(QWidget& control, const QAbstractItemModel& model, Rows& rows);
  ~AccessibleRows();

  QAccessibleInterface* row(int row) const;  // null where there is none
  int indexOf(const QAccessibleInterface* row) const;
  // The current row of a control that has the focus, else null.
  QAccessibleInterface* focused() const;
  void announceFocus() const;
  // Screen readers ignore what changes of a row that they know, but speak a new row. So the current
  // row gets a new interface.
  void announceAsNewRow();
  // Waits until all changes of the present event are done.
  void announceNamesLater();

 private:
  class Children;
  std::unique_ptr<Children> children_;
};

}  // namespace forms
