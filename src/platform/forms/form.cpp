#include "platform/forms/form.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFontDatabase>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <optional>
#include <string>
#include <utility>

#include "platform/forms/control_accessible.h"
#include "platform/forms/input_guard.h"
#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {
namespace {

Qt::WindowFlags FlagsOf(Border border) {
  const auto titled = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                      Qt::WindowCloseButtonHint;
  switch (border) {
    case Border::FixedSingle:
      return Qt::Window | titled | Qt::WindowMinimizeButtonHint;
    case Border::FixedTool:
      return Qt::Tool | titled;
    case Border::FixedDialog:
      return Qt::Dialog | titled;
    case Border::None:
      break;
  }
  return Qt::Dialog | Qt::FramelessWindowHint;
}

class FormWindow : public QMainWindow {
 public:
  FormWindow(Form& form, Border border) : QMainWindow(nullptr, FlagsOf(border)), form_(form) {
    qApp->installEventFilter(this);
  }

  void waitUntilClosed() {
    QEventLoop loop;
    loop_ = &loop;
    if (isVisible()) loop.exec();
    loop_ = nullptr;
  }
  // Waits until the window is painted on the screen, but at most a second, since not every window
  // system reports it.
  void waitUntilShown() const {
    const QDeadlineTimer deadline(std::chrono::seconds(1));
    do {
      QApplication::processEvents();
      if (windowHandle()->isExposed()) break;
      QThread::msleep(1);
    } while (!deadline.hasExpired());
    QApplication::processEvents();
  }

  // Centres the window including its frame. A window that was not shown yet has no frame; then the
  // frame of `neighbour` is measured instead.
  void centreOn(QPoint centre, const QWidget* neighbour) {
    adjustSize();
    const auto& framed = neighbour ? *neighbour : *this;
    const bool hasFrame = !windowFlags().testFlag(Qt::FramelessWindowHint);
    const auto outer =
        size() + (hasFrame ? framed.frameGeometry().size() - framed.size() : QSize(0, 0));
    const QPoint corner(centre.x() - outer.width() / 2, centre.y() - outer.height() / 2);
    // On a screen smaller than the window, the title and the menus stay in reach.
    const auto room = (neighbour ? neighbour : this)->screen()->availableGeometry();
    const QPoint inside(std::max(corner.x(), room.x()), std::max(corner.y(), room.y()));
    move(QGuiApplication::screenAt(corner) ? corner : inside);
  }

  QPushButton* defaultButton = nullptr;
  bool closeRefused = false;
  std::optional<QPoint> centreOnceShown;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Expose && watched == windowHandle() && centreOnceShown)
      centreOn(*std::exchange(centreOnceShown, {}), nullptr);
    if (!watched->isWidgetType()) return false;
    auto* target = static_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || !TakesInput(*target)) return false;
    // Only the focus widget's own event counts. If it ignores the event, its parents get it too.
    const QWidget* focus = QApplication::focusWidget();
    if (target->window() != this || target != (focus ? focus : this)) return false;
    // While the menu bar has the focus, it handles Escape and Enter itself.
    if (qobject_cast<QMenuBar*>(target)) return false;

    const auto key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape) {
      Raise(form_.onEscape);
      return true;
    }
    return (key == Qt::Key_Return || key == Qt::Key_Enter) && pressButtonFor(*target);
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::WindowActivate) announceFocusLater();
    return QMainWindow::event(event);
  }
  void closeEvent(QCloseEvent* event) override {
    event->setAccepted(!closeRefused);
    if (closeRefused) return;
    Raise(form_.onUnload);
    if (loop_) loop_->quit();
  }
  void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { Raise(form_.onDblClick); }

 private:
  // Handles Enter: a push button in focus is clicked, a control that takes Enter keeps the key, and
  // else the default button is clicked.
  bool pressButtonFor(QWidget& focus) const {
    if (auto* own = qobject_cast<QPushButton*>(&focus)) {
      own->click();
      return true;
    }
    if (TakesEnter(focus) || !defaultButton) return false;
    defaultButton->click();
    return true;
  }

  // Announces the focus again a moment after the window has become active, and once more for a
  // reader that is late. Some screen readers handle older news of the focus in another window after
  // that, and take the focus to be there. They ignore what they know already.
  void announceFocusLater() {
    const auto announce = [this] {
      if (isActiveWindow() && !QApplication::activePopupWidget()) AnnounceFocusOf(*this);
    };
    if (!QAccessible::isActive()) return;
    for (const int milliseconds : {700, 3000}) QTimer::singleShot(milliseconds, this, announce);
  }

  Form& form_;
  QEventLoop* loop_ = nullptr;
};

// DejaVu Sans has the widths of Verdana. A family that does not exist is not named, because the
// toolkit would search a substitute for each size and weight. The size is that of most controls, so
// that no other size is loaded for nothing.
QFont FormFont() {
  static const auto family = QFontDatabase::hasFamily(QStringLiteral("Verdana"))
                                 ? QStringLiteral("Verdana")
                                 : QStringLiteral("DejaVu Sans");
  auto font = ToFont({});
  font.setFamily(family);
  return font;
}

// Loads the control's font before it is painted. The toolkit loads a font when it first measures a
// text.
void LoadFontOf(const QWidget& control) {
  static_cast<void>(control.fontMetrics().horizontalAdvance('x'));
}

QPoint Centre(const QRect& outer) {
  return {outer.x() + outer.width() / 2, outer.y() + outer.height() / 2};
}

}  // namespace

struct Form::Native {
  Native(Form& form, Border border) : window(form, border) {}

  FormWindow window;
  QWidget* client = nullptr;
};

Form::Form(const char* name, Border border, int clientWidth, int clientHeight)
    : native_(std::make_unique<Native>(*this, border)) {
  auto& window = native_->window;
  window.setObjectName(QString::fromUtf8(name));
  window.setContextMenuPolicy(Qt::NoContextMenu);
  native_->client = new QWidget(&window);
  native_->client->setFixedSize(ToPixels(clientWidth), ToPixels(clientHeight));
  window.setCentralWidget(native_->client);
  window.layout()->setSizeConstraint(QLayout::SetFixedSize);
}

Form::~Form() = default;

void Form::setTitle(const std::string& title) {
  // The toolkit replaces "[*]" in a title unless it is doubled.
  native_->window.setWindowTitle(
      ToQString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void Form::setDescription(const std::string& text) {
  native_->window.setAccessibleDescription(ToQString(text));
}

void Form::setColours(Colour background, Colour text) {
  auto palette = native_->client->palette();
  palette.setColor(QPalette::Window, QColor(background.red, background.green, background.blue));
  palette.setColor(QPalette::WindowText, QColor(text.red, text.green, text.blue));
  native_->client->setPalette(palette);
  native_->client->setAutoFillBackground(true);
}

void Form::setDefaultButton(CommandButton& button) {
  auto* native = static_cast<QPushButton*>(button.widget());
  native->setDefault(true);
  native_->window.defaultButton = native;
}

void Form::setTabOrder(const std::vector<const Control*>& controls) {
  for (std::size_t i = 1; i < controls.size(); ++i)
    QWidget::setTabOrder(controls[i - 1]->widget(), controls[i]->widget());
}

void Form::setCloseRefused(bool refused) { native_->window.closeRefused = refused; }

void Form::centreOver(const Form& owner) {
  const auto& window = owner.native_->window;
  native_->window.centreOn(Centre(window.frameGeometry()), &window);
}

void Form::centreOnScreen() {
  auto& window = native_->window;
  const auto centre = Centre(window.screen()->availableGeometry());
  window.centreOn(centre, nullptr);
  window.centreOnceShown = centre;  // when its frame is known
}

void Form::prepareToShow() {
  native_->window.setWindowIcon(WindowIcon());
  native_->client->setFont(FormFont());
  for (auto* control : native_->window.findChildren<QWidget*>()) {
    control->ensurePolished();
    if (control->testAttribute(Qt::WA_StyleSheet)) {
      // A control with a style sheet does not inherit the form's font family.
      auto font = control->font();
      font.setFamily(FormFont().family());
      control->setFont(font);
    }
    LoadFontOf(*control);
  }
}

void Form::show() { native_->window.show(); }

void Form::showModal(Form& owner) {
  auto& window = native_->window;
  prepareToShow();
  Raise(onLoad);
  const auto place = window.pos();
  window.setParent(&owner.native_->window, window.windowFlags());
  window.move(place);
  window.setWindowModality(Qt::ApplicationModal);
  window.show();
  if (onActivate) {
    window.waitUntilShown();
    Raise(onActivate);
  }
  window.waitUntilClosed();
  window.setParent(nullptr, window.windowFlags());
  // Some window managers activate no window when the active one closes.
  owner.native_->window.activateWindow();
}

void Form::close() { native_->window.close(); }

void Form::repaint() { native_->window.repaint(); }

bool Form::visible() const { return native_->window.isVisible(); }

QWidget* Form::clientArea() const { return native_->client; }

}  // namespace forms
