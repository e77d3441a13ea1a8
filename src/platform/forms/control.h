// What all controls have in common. Positions and sizes are in twips, 15 to a pixel at 96 dots per
// inch, inside the form or frame that holds the control.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace forms {

struct Box {
  int left = 0, top = 0, width = 0, height = 0;
};

struct FontStyle {
  double points = 8.25;
  bool bold = false, italic = false, underline = false;
  int letterWidth = 100;  // percent of a letter's usual width
};

struct Colour {
  int red = 0, green = 0, blue = 0;
};
inline constexpr Colour kWhite{255, 255, 255};
inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kGrey{128, 128, 128};

// What a control is for assistive technology, which ignores a decoration.
enum class Role { Picture, Group, Link, Decoration };

// A form or a frame: what controls are built on.
class Container {
 public:
  virtual QWidget* clientArea() const = 0;

 protected:
  Container() = default;
  ~Container() = default;
};

class Control {
 public:
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Box box() const { return box_; }
  void setLeft(int left);

  // The control's own state, independent of that of the form or frame that holds it.
  void setVisible(bool visible);
  bool enabled() const;
  void setEnabled(bool enabled);

  void setFocus();

  // Plain text.
  std::string toolTip() const;
  void setToolTip(const std::string& text);

  void setFont(const FontStyle& font);
  void setTextColour(Colour colour);
  void setBackColour(Colour colour);
  // Back to the desktop's own colours.
  void resetColours();

  // The name that assistive technology reports, for a control without a caption that says what it
  // is. A colon at its end is dropped.
  void setAccessibleName(const std::string& name);
  // The description that assistive technology reports after the control's name and value.
  void setAccessibleDescription(const std::string& text);
  // Has assistive technology speak the control as if the focus had come to it.
  void announce() const;
  // Sets the role, for a control whose class does not determine it.
  void setRole(Role role);

 protected:
  // Takes ownership of `widget`, a child of the container's client area. Tests and tools find the
  // control by `name`.
  Control(QWidget* widget, const char* name, const Box& box, const FontStyle& font);

  QWidget* widget() const { return widget_; }

 private:
  friend class Form;
  void move(const Box& box);

  QWidget* widget_;
  Box box_;
};

}  // namespace forms
