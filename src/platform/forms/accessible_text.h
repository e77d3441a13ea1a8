// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>
#include <memory>

class QAccessibleTextInterface;
template <class Key, class T>
class QHash;
class QString;

namespace forms {

// The text that a control shows, in a form that assistive technology can read but not change.
std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown);

// Attributes that the toolkit has no call for, by the names that screen readers know: "valuetext"
// is a value in words, "setsize" the number of rows, "posinset" the number of a row.
using AttributeValues = QHash<QString, QString>;

// Whether the toolkit passes attributes to assistive technology.
bool HasAttributes();

class AccessibleAttributes {
 public:
  explicit AccessibleAttributes(std::function<AttributeValues()> values);
  ~AccessibleAttributes();

  // The answer to the control's interface_cast for this QAccessible::InterfaceType. Null if the
  // type is not that of attributes, or if HasAttributes() is false.
  void* cast(int type) const;

 private:
  class Interface;
  std::unique_ptr<Interface> interface_;
};

}  // namespace forms
