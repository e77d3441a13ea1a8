// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>
#include <memory>

class QAccessibleTextInterface;
template <class Key, class T>
class QHash;
class QString;

namespace forms {

// What a control shows, as a text that assistive technology reads but does not change.
std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown);

// What the toolkit has no call for, by the names that screen readers know: "valuetext" is a value
// in words, "setsize" and "posinset" count rows.
using AttributeValues = QHash<QString, QString>;

// Whether the toolkit hands attributes on.
bool HasAttributes();

class AccessibleAttributes {
 public:
  explicit AccessibleAttributes(std::function<AttributeValues()> values);
  ~AccessibleAttributes();

  // For the control's interface_cast, with its QAccessible::InterfaceType. Null for other types,
  // and where attributes are not handed on.
  void* cast(int type) const;

 private:
  class Interface;
  std::unique_ptr<Interface> interface_;
};

}  // namespace forms
