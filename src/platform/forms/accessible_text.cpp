#include "platform/forms/accessible_text.h"

#include <QAccessible>
#include <QRect>
#include <utility>

namespace forms {
namespace {

class ShownText : public QAccessibleTextInterface {
 public:
  explicit ShownText(std::function<QString()> shown) : shown_(std::move(shown)) {}

  QString text(int start, int end) const override { return shown_().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(shown_().size()); }
  QString attributes(int /*offset*/, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

  void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int /*start*/, int /*end*/) override {}
  void removeSelection(int /*index*/) override {}
  void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int /*position*/) override {}
  QRect characterRect(int /*offset*/) const override { return {}; }
  int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
  void scrollToSubstring(int /*start*/, int /*end*/) override {}

 private:
  std::function<QString()> shown_;
};

}  // namespace

std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown) {
  return std::make_unique<ShownText>(std::move(shown));
}

}  // namespace forms
