#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

enum class Sorting { No, IgnoringCase };

// Rows of text, each with an integer that stays with its row. At most one row is selected; only the
// program can remove the selection. If no row is selected, entering the list by the Tab key selects
// one. Functions throw if there is no such row; but setTopRow scrolls as far as it can, and select
// takes any negative row as none.
class ListBox : public Control {
 public:
  ListBox(Container& parent, const char* name, const Box& box, Sorting sorting = Sorting::No,
          const FontStyle& font = {});

  // These functions raise no click; onScroll may follow if the list gets shorter. Removing the
  // selected row leaves none selected. A list that becomes empty loses its tool tip.
  void clear();
  int add(const std::string& text);  // returns the new row's number
  void remove(int row);
  void setText(int row, const std::string& text);
  // Draws the row in a colour closer to the background. It can be chosen like any other.
  void makeQuiet(int row);

  // Keeps the row, but neither the user nor assistive technology can choose it.
  void disable(int row);

  int count() const;
  std::string text(int row) const;
  int itemData(int row) const;
  void setItemData(int row, int data);

  int selectedRow() const;  // -1 for none
  void select(int row);     // -1 for none; another row than before raises the click
  int topRow() const;
  void setTopRow(int row);

  // Makes a screen reader speak the selected row once more, since its description has changed.
  void announceDescription();

  // Without its scroll bar the list can be scrolled by keys, the wheel, or the program.
  void hideScrollBar();

  // Makes F2 act as a double click.
  void takeF2();

  std::function<void()> onClick;
  std::function<void()> onDblClick;  // on a row; also a press by assistive technology
  std::function<void()> onDelete;    // the Delete key
  std::function<void()> onScroll;
  // Returns the description of a row for assistive technology. It is called whenever one is needed.
  std::function<std::string(int row)> descriptionOf;
  // The name of a row without a text for assistive technology.
  std::string emptyRowName;
  // Returns the tool tip of a row, as plain text. If it is not set, a text that is cut off is its
  // own tool tip.
  std::function<std::string(int row)> toolTipOf;

 protected:
  // Makes Enter act as a double click instead of pressing the form's default button.
  void takeEnter();

 private:
  int placeOf(const std::string& text) const;

  Sorting sorting_;
};

}  // namespace forms
