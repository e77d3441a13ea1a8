#include "platform/forms/accessible_text.h"

#include <QAccessible>
#include <QHash>
#include <QRect>
#include <QString>
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

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

class AccessibleAttributes::Interface : public QAccessibleAttributesInterface {
 public:
  explicit Interface(std::function<AttributeValues()> values) : values_(std::move(values)) {}

  QList<QAccessible::Attribute> attributeKeys() const override {
    return {QAccessible::Attribute::Custom};
  }
  QVariant attributeValue(QAccessible::Attribute key) const override {
    return key == QAccessible::Attribute::Custom ? QVariant::fromValue(values_()) : QVariant();
  }

 private:
  std::function<AttributeValues()> values_;
};

void* AccessibleAttributes::cast(int type) const {
  return type == QAccessible::AttributesInterface ? interface_.get() : nullptr;
}

#else

class AccessibleAttributes::Interface {
 public:
  explicit Interface(std::function<AttributeValues()>&& /*values*/) {}
};

void* AccessibleAttributes::cast(int /*type*/) const { return nullptr; }

#endif

bool HasAttributes() { return QT_VERSION >= QT_VERSION_CHECK(6, 8, 0); }

AccessibleAttributes::AccessibleAttributes(std::function<AttributeValues()> values)
    : interface_(std::make_unique<Interface>(std::move(values))) {}

AccessibleAttributes::~AccessibleAttributes() = default;

std::unique_ptr<QAccessibleTextInterface> NewAccessibleText(std::function<QString()> shown) {
  return std::make_unique<ShownText>(std::move(shown));
}

}  // namespace forms
