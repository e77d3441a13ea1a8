// What is painted: rows, the focus, and texts that are too long for their place.
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_view.h"
#include "support/ui_test.h"

namespace {

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

class Painting : public support::UiTest {};

TEST_F(Painting, GamesThatAreNotAvailableHaveLessContrastButAreReadable) {
  write("roms/a.zip", "");
  start();
  act("press Tab");  // out of the list, since the focus ring has contrast too
  auto& list = get<QListWidget>(window(), "lstGames");
  // The contrast of a row's text to its background.
  const auto contrastOf = [&](int row, QPalette::ColorRole background) {
    const auto place = list.visualItemRect(list.item(row)).adjusted(3, 2, -3, -2);
    const auto image = list.viewport()->grab(place).toImage();
    const auto behind = Luminance(list.palette().color(background));
    double most = 1;
    for (int x = 0; x < image.width(); ++x)
      for (int y = 0; y < image.height(); ++y) {
        const auto [dark, light] = std::minmax({Luminance(image.pixelColor(x, y)), behind});
        most = std::max(most, (light + 0.05) / (dark + 0.05));
      }
    return most;
  };
  for (const auto& desktop : {QPalette(QColor(240, 240, 240)), QPalette(QColor(45, 45, 45))}) {
    list.setPalette(desktop);
    list.setCurrentRow(0);
    EXPECT_GE(contrastOf(1, QPalette::Base), 4.5);
    list.setCurrentRow(1);
    EXPECT_GE(contrastOf(1, QPalette::Highlight), 4.5);
    const auto available = contrastOf(0, QPalette::Base);
    list.setCurrentRow(0);
    EXPECT_LT(contrastOf(1, QPalette::Base), available - 3);
  }
}

TEST_F(Painting, TheFocusOfALinkIsVisible) {
  start();
  modify("optOPT(2)", [](QWidget& window) {
    auto& link = get(window, "lblAdvOpts");
    const auto plain = link.grab().toImage();
    link.setFocus();
    EXPECT_NE(link.grab().toImage(), plain);
  });
}

TEST_F(Painting, TextsThatDoNotFitAreWrappedAndEndInAnEllipsis) {
  forms::Form form("Test", forms::Border::FixedDialog, 6000, 6000);
  forms::Label label(form, "label", {0, 0, 3000, 900}, "");
  auto& widget = get(*form.clientArea()->window(), "label");
  const auto drawn = [&](const QString& text) {
    label.setCaption(text.toStdString());
    return widget.grab().toImage();
  };
  // The number of visible lines of text.
  const auto linesOf = [](const QImage& image) {
    int lines = 0;
    bool inside = false;
    for (int y = 0; y < image.height(); ++y) {
      bool ink = false;
      for (int x = 1; x < image.width(); ++x) ink |= image.pixel(x, y) != image.pixel(0, y);
      lines += ink && !inside;
      inside = ink;
    }
    return lines;
  };
  // All letters have the same height, so that each line is one block of pixels.
  const auto text = QStringLiteral("sea cows are near us no one crew saw ").repeated(20);
  for (const int lines : {1, 3}) {
    label.setWordWrap(lines > 1);
    widget.resize(200, widget.fontMetrics().lineSpacing() * lines + (lines > 1 ? 5 : 0));
    const auto cut = drawn(text);
    EXPECT_EQ(linesOf(cut), lines);
    int same = 0;
    for (int length = 20; length < 200; ++length)
      same += drawn(text.left(length).trimmed() + QChar(0x2026)) == cut;
    EXPECT_GT(same, 0) << "no beginning of the text and an ellipsis";
    EXPECT_EQ(linesOf(drawn("sea cows")), 1);
  }
}

// The time that the toolkit takes for a line grows with the square of its length.
TEST_F(Painting, VeryLongLinesOfAReportAreSplit) {
  forms::Form form("Test", forms::Border::FixedDialog, 6000, 6000);
  forms::TextView view(form, "view", {0, 0, 3000, 900});
  view.setText(std::string(8001, 'x') + "\n\nend");
  const auto lines =
      get<QPlainTextEdit>(*form.clientArea()->window(), "view").toPlainText().split('\n');
  EXPECT_EQ(lines, QStringList({QString(4000, 'x'), QString(4000, 'x'), "x", "", "end"}));
}

TEST_F(Painting, AListHasOneLineAroundItThatItsFirstRowDoesNotTouch) {
  start();
  modify("optOPT(2)", [](QWidget& options) {
    auto& first = get<QListWidget>(options, "lstInput(1)");
    get<QListWidget>(options, "lstInput(0)").setCurrentRow(0);
    const auto image = options.grab().toImage();
    const auto scale = image.devicePixelRatio();
    // For the pixels on the way, whether they have the list's background, without repetitions.
    const auto groundOn = [&](QPointF from, QPointF to) {
      std::vector<bool> grounds;
      const auto steps = static_cast<int>((to - from).manhattanLength() * scale);
      for (int step = 0; step <= steps; ++step) {
        const auto at =
            (first.mapTo(&options, QPoint()) + from + (to - from) * step / steps) * scale;
        grounds.push_back(image.pixelColor(static_cast<int>(at.x()), static_cast<int>(at.y())) ==
                          first.palette().color(QPalette::Base));
      }
      grounds.erase(std::unique(grounds.begin(), grounds.end()), grounds.end());
      return grounds;
    };
    const double middle = first.width() / 2.0, bottom = first.height() - 4.0;
    EXPECT_EQ(groundOn({middle, 0.5}, {middle, 3.5}), (std::vector{false, true, false}));
    EXPECT_EQ(groundOn({-4, bottom}, {4, bottom}), (std::vector{true, false, true}));
  });
}

TEST_F(Painting, AListThatNeedsNoScrollBarAnyMoreKeepsNothingOfIt) {
  start();
  modify("optOPT(2)", [this](QWidget& options) {
    act(options, "click optTypeInputs(1)");
    const auto onScreen = options.screen()->grabWindow(options.winId()).toImage();
    // Without a display a scaled screen gives its upper left part only.
    const auto anew = options.grab().toImage().convertToFormat(onScreen.format());
    EXPECT_EQ(onScreen, anew.copy(onScreen.rect()));
  });
}

// The focus ring of an option button must not cover its caption, and has its two outer pixels.
TEST_F(Painting, CaptionsOfOptionButtonsKeepOffTheFocusRing) {
  start();
  act("choose mLang(2)");
  modify("optOPT(2)", [](QWidget& options) {
    for (const auto* button : options.findChildren<QRadioButton*>()) {
      if (!button->isVisible()) continue;
      const QRect place(button->mapTo(&options, QPoint()), button->size());
      const auto image = options.grab(place.adjusted(place.width() - 2, 0, 0, 0)).toImage();
      auto background = image;
      background.fill(image.pixelColor(0, 0));
      EXPECT_EQ(image, background) << qPrintable(button->text());
    }
  });
}

TEST_F(Painting, AWindowLargerThanTheScreenHasItsCornerOnIt) {
  forms::Form large("large", forms::Border::FixedSingle, 20000, 20000);
  large.centreOnScreen();
  EXPECT_EQ(large.clientArea()->window()->pos(), QPoint(0, 0));
  forms::Form larger("larger", forms::Border::FixedDialog, 30000, 30000);
  larger.centreOver(large);
  EXPECT_EQ(larger.clientArea()->window()->pos(), QPoint(0, 0));
}

}  // namespace
