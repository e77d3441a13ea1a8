// Shared by the sources of this folder; no other code includes it.
#pragma once

#include <functional>
#include <memory>

class QAccessibleTextInterface;
class QString;

namespace forms {

// What a control shows, as a text that assistive technology reads but does not change.
std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown);

}  // namespace forms
