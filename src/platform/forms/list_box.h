#pragma once

#include <vector>

#include "platform/forms/control.h"

namespace forms {

enum class Sorting { No, IgnoringCase };

// Rows of text, each with an integer that travels with it. At most one row is selected; only the
// program can take the selection away. Rows that are not there are a failure.
class ListBox : public Control {
 public:
  ListBox(Container& parent, const char* name, const Box& box, Sorting sorting = Sorting::No,
          const FontStyle& font = {});

  // None of these five raises an event, and removing the selected row leaves none selected.
  void clear();
  int add(const std::string& text);  // the row at which it was placed
  void remove(int row);
  void setText(int row, const std::string& text);
  // What assistive technology tells of a row besides its text.
  void describe(int row, const std::string& text);

  // The row stays, but neither the user nor assistive technology can choose it.
  void disable(int row);

  int count() const;
  std::string text(int row) const;
  int itemData(int row) const;
  void setItemData(int row, int data);

  int selectedRow() const;  // -1 for none
  void select(int row);     // -1 for none; a change raises the click
  int topRow() const;
  void setTopRow(int row);

  // Without its own scroll bar the list is moved by keys, the wheel, or the program.
  void hideScrollBar();

  std::function<void()> onClick;
  std::function<void()> onDblClick;  // on a row; also F2, and a press by assistive technology
  std::function<void(int keyCode)> onKeyDown;  // 46 Delete
  std::function<void()> onScroll;

 protected:
  // Enter acts as a double click instead of pressing the form's default button.
  void takeEnter();

 private:
  Sorting sorting_;
  std::vector<std::string> keys_;  // what the rows are sorted by, in their order
};

}  // namespace forms
