#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/command_button.h"
#include "platform/forms/control.h"
#include "platform/forms/picture.h"

namespace forms {

enum class Border { FixedSingle, FixedTool, FixedDialog, None };

// A window of fixed size. The size is in twips and excludes the frame. It is created hidden.
class Form : public Container {
 public:
  Form(const char* name, Border border, int clientWidth, int clientHeight);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  void setTitle(const std::string& title);
  // The description that assistive technology reports after the window's title.
  void setDescription(const std::string& text);
  void setColours(Colour background, Colour text);
  // The button that Enter presses, unless the control in focus takes Enter itself.
  void setDefaultButton(CommandButton& button);
  // The order in which the Tab key visits these controls.
  static void setTabOrder(const std::vector<const Control*>& controls);
  // While true, the window can't be closed from outside.
  void setCloseRefused(bool refused);

  // Sets left = owner's left + owner's width / 2 - own width / 2, and the top likewise.
  void centreOver(const Form& owner);
  void centreOnScreen();

  // Loads fonts, styles and the icon. To be called before `show`; showModal calls it itself.
  void prepareToShow();
  void show();
  // Runs the load step, shows the window over its owner, runs the activation step and returns when
  // the window has closed. The owner and all other windows take no input meanwhile.
  void showModal(Form& owner);
  void close();
  void repaint();
  bool visible() const;

  QWidget* clientArea() const override;

  std::function<void()> onLoad;
  std::function<void()> onActivate;
  std::function<void()> onUnload;
  std::function<void()> onDblClick;
  // Escape was pressed, whichever control has the focus.
  std::function<void()> onEscape;

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

}  // namespace forms
