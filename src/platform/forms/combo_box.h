#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// A drop-down list without typing. Selecting another row raises the click, whether the user or the
// program does it.
class ComboBox : public Control {
 public:
  ComboBox(Container& parent, const char* name, const Box& box, const FontStyle& font = {});

  // Raises no event and does not change the selection.
  void add(const std::string& text);
  int count() const;
  std::string text() const;  // of the selected row; empty for none

  int selectedRow() const;  // -1 for none
  // Throws if there is no such row.
  void select(int row);
  // Selects the row with exactly this text; false if there is none.
  bool selectText(const std::string& text);

  std::function<void()> onClick;
};

}  // namespace forms
