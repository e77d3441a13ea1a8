// What assistive technology gets to know of the rows of lists, drop-downs and trees. Shared by the
// sources of this folder; no other code includes it.
#pragma once

#include <memory>

class QAbstractItemModel;
class QAccessibleInterface;
class QModelIndex;
class QRect;
class QWidget;

namespace forms {

// Register the interfaces. To be called once, when the application starts.
void MakeListsAccessible();
void MakeDropDownsAccessible();
void MakeTreesAccessible();

struct RowState {
  bool selected = false, disabled = false, offscreen = false;
  bool expandable = false, expanded = false;
};

// The rows of a control, numbered from 0. The number -1 means none.
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

// Announces the row as the one in focus, if there is one.
void AnnounceFocus(QAccessibleInterface* row);

// Announces the current row of a control that has just got the focus, after the control itself.
void AnnounceRowLater(QWidget& control);

// Makes the rows children of their control for assistive technology. Announces changed names.
class AccessibleRows {
 public:
  AccessibleRows(QWidget& control, const QAbstractItemModel& model, Rows& rows);
  ~AccessibleRows();

  QAccessibleInterface* row(int row) const;  // null where there is none
  int indexOf(const QAccessibleInterface* row) const;
  // The current row of a control that has the focus, else null.
  QAccessibleInterface* focused() const;
  void announceFocus() const;
  // Announces the current row with a new interface. Screen readers ignore changes of a row that
  // they know, but speak a new row.
  void announceAsNewRow();
  // Announces changed names after all changes of the present event are done.
  void announceNamesLater();

 private:
  class Children;
  std::unique_ptr<Children> children_;
};

}  // namespace forms
