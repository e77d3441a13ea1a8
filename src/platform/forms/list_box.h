#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

enum class Sorting { No, IgnoringCase };

// Rows of text, each with an integer that travels with it. At most one row is selected; only the
// program can take the selection away. Where none is, entering the list by the Tab key selects one.
// Rows that are not there are a failure.
class ListBox : public Control {
 public:
  ListBox(Container& parent, const char* name, const Box& box, Sorting sorting = Sorting::No,
          const FontStyle& font = {});

  // None of these four raises an event, and removing the selected row leaves none selected. A list
  // that becomes empty loses its tool tip.
  void clear();
  int add(const std::string& text);  // the row at which it was placed
  void remove(int row);
  void setText(int row, const std::string& text);
  // The row is drawn in a quieter colour, and can be chosen like any other.
  void makeQuiet(int row);

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

  // F2 acts as a double click.
  void takeF2();

  std::function<void()> onClick;
  std::function<void()> onDblClick;  // on a row; also a press by assistive technology
  std::function<void()> onDelete;    // the Delete key
  std::function<void()> onScroll;
  // What assistive technology tells of a row besides its text. It is asked for as it is needed.
  std::function<std::string(int row)> descriptionOf;
  // What assistive technology calls a row without a text.
  std::string emptyRowName;
  // The tool tip of a row, as plain text. Without it, a text that is cut off has itself as tip.
  std::function<std::string(int row)> toolTipOf;

 protected:
  // Enter acts as a double click instead of pressing the form's default button.
  void takeEnter();

 private:
  int placeOf(const std::string& text) const;

  Sorting sorting_;
};

}  // namespace forms
