// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <QAccessible>
#include <QHash>
#include <QString>
#include <functional>
#include <memory>

namespace forms {

// What a control shows, as a text that assistive technology reads but does not change.
std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown);

// What the toolkit has no call for, by the names that screen readers know: "valuetext" is a value
// in words, "setsize" and "posinset" count rows.
using AttributeValues = QHash<QString, QString>;

// Whether the toolkit hands attributes on.
inline constexpr bool kHasAttributes = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

class AccessibleAttributes {
 public:
  explicit AccessibleAttributes(std::function<AttributeValues()> values);
  ~AccessibleAttributes();

  // For the control's interface_cast; null for other types, and where attributes are not handed on.
  void* cast(QAccessible::InterfaceType type) const;

 private:
  class Told;
  std::unique_ptr<Told> told_;
};

}  // namespace forms
