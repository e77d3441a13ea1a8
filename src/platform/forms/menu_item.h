#pragma once

#include <functional>
#include <string>

#include "platform/forms/form.h"

class QAction;

namespace forms {

// An item of a form's menu bar, or of another item's menu. "&" marks the access key of the caption;
// the caption "-" makes a separator.
class MenuItem {
 public:
  MenuItem(Form& form, const char* name, const std::string& caption);
  MenuItem(MenuItem& parent, const char* name, const std::string& caption);
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  void setCaption(const std::string& caption);
  void setChecked(bool checked);
  void setVisible(bool visible);
  void setEnabled(bool enabled);

  std::function<void()> onClick;

 private:
  void prepare(const char* name, const std::string& caption);

  QAction* action_;  // owned by the menu bar or menu that holds it
};

}  // namespace forms
