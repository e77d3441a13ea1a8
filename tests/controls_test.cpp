// What transcripts can't show: how rows, edges, the focus, and long texts are painted; the drives.
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_view.h"
#include "support/ui_test.h"

namespace {

double Luminance(const QColor& colour) {
  return 0.2126 * std::pow(colour.redF(), 2.2) + 0.7152 * std::pow(colour.greenF(), 2.2) +
         0.0722 * std::pow(colour.blueF(), 2.2);
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

using Controls = support::UiTest;

TEST_F(Controls, GamesThatAreNotAvailableHaveLessContrastButAreReadable) {
  write("roms/a.zip", "");
  start();
  act("press Tab");  // out of the list, since the focus ring has contrast too
  auto& list = get<QListWidget>(window(), "lstGames");
  // The contrast of a row's text to its background.
  const auto contrastOf = [&](int row, QPalette::ColorRole background) {
    const auto place = list.visualItemRect(list.item(row)).adjusted(3, 2, -3, -2);
    const auto image = list.viewport()->grab(place).toImage();
    double most = 1;
    for (int x = 0; x < image.width(); ++x)
      for (int y = 0; y < image.height(); ++y)
        most = std::max(most, Contrast(image.pixelColor(x, y), list.palette().color(background)));
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

TEST_F(Controls, TheFocusOfALinkIsVisible) {
  start();
  modify("optOPT(2)", [](QWidget& window) {
    auto& link = get(window, "lblAdvOpts");
    const auto plain = link.grab().toImage();
    link.setFocus();
    EXPECT_NE(link.grab().toImage(), plain);
  });
}

TEST_F(Controls, IndicatorsHaveAVisibleEdgeAndThatOfAnOptionButtonAMargin) {
  start();
  // Where the edge begins, in pixels from the left.
  const auto edgeOf = [](QWidget& window, const char* name) {
    const auto image = get(window, name).grab().toImage();
    int x = 0;
    while (x < image.width() &&
           Contrast(image.pixelColor(x, image.height() / 2), image.pixelColor(0, 0)) < 3)
      ++x;
    return static_cast<int>(x / image.devicePixelRatio());
  };
  EXPECT_EQ(edgeOf(window(), "optGames(1)"), 2);
  modify("optOPT(1)", [&](QWidget& options) { EXPECT_EQ(edgeOf(options, "chkVsync"), 0); });
}

TEST_F(Controls, TextsThatDoNotFitAreWrappedAndEndInAnEllipsis) {
  forms::Form form("Test", forms::Border::FixedDialog, 6000, 6000);
  forms::Label label(form, "label", {0, 0, 3000, 900}, "");
  auto& widget = get(*form.clientArea()->window(), "label");
  const auto drawn = [&](const QString& text) {
    label.setCaption(text.toStdString());
    return widget.grab().toImage();
  };
  const auto text = QStringLiteral("sea cows are near us no one crew saw ").repeated(20);
  for (const int lines : {1, 3}) {
    label.setWordWrap(lines > 1);
    widget.resize(200, widget.fontMetrics().lineSpacing() * lines + (lines > 1 ? 5 : 0));
    const auto cut = drawn(text);
    int shown = 20;
    while (shown < 200 && drawn(text.left(shown).trimmed() + QChar(0x2026)) != cut) ++shown;
    // One line is drawn smaller, at 80 percent.
    EXPECT_NEAR(widget.fontMetrics().horizontalAdvance(text.left(shown)), lines > 1 ? 560 : 220, 50)
        << "no beginning of the text that fills the lines";
    EXPECT_NE(drawn(text.left(shown).trimmed()), cut) << "no ellipsis";
  }
}

TEST_F(Controls, PartsOfALabelAreSpreadOverItsWidth) {
  forms::Form form("Test", forms::Border::FixedDialog, 6000, 6000);
  forms::Label label(form, "label", {0, 0, 3000, 300}, {}, {}, forms::Align::Spread);
  for (const std::string text : {"i   w", "i   w   i"}) {
    label.setCaption(text);
    for (const int x : {0, 95, 190}) {
      const auto part = get(*form.clientArea()->window(), "label").grab({x, 0, 10, 20}).toImage();
      auto blank = part;
      blank.fill(part.pixel(0, 0));
      EXPECT_EQ(part == blank, x == 95 && text.size() == 5) << text << x;
    }
  }
}

// The time that the toolkit takes for a line grows with the square of its length.
TEST_F(Controls, VeryLongLinesOfAReportAreSplit) {
  forms::Form form("Test", forms::Border::FixedDialog, 6000, 6000);
  forms::TextView view(form, "view", {0, 0, 3000, 900});
  view.setText(std::string(8001, 'x') + "\n\nend");
  const auto lines =
      get<QPlainTextEdit>(*form.clientArea()->window(), "view").toPlainText().split('\n');
  EXPECT_EQ(lines, QStringList({QString(4000, 'x'), QString(4000, 'x'), "x", "", "end"}));
}

TEST_F(Controls, AListHasOneLineAroundItThatItsFirstRowDoesNotTouch) {
  start();
  modify("optOPT(2)", [](QWidget& options) {
    auto& list = get<QListWidget>(options, "lstInput(1)");
    get<QListWidget>(options, "lstInput(0)").setCurrentRow(0);
    const auto image = options.grab().toImage();
    const auto scale = image.devicePixelRatio();
    // Eight samples for each pixel of the scale, from a place in the list on: "_" is the list's
    // background, "|" anything else; repetitions are left out.
    const auto groundsOn = [&](QPointF from, QPointF step) {
      std::string grounds;
      auto at = (list.mapTo(&options, QPoint()) + from) * scale;
      for (int pixel = 0; pixel < 8 * scale; ++pixel, at += step)
        grounds +=
            image.pixelColor(at.toPoint()) == list.palette().color(QPalette::Base) ? '_' : '|';
      grounds.erase(std::unique(grounds.begin(), grounds.end()), grounds.end());
      return grounds;
    };
    EXPECT_EQ(groundsOn({list.width() / 2.0, 0}, {0, 0.5}), "|_|");
    EXPECT_EQ(groundsOn({-4, list.height() - 4.0}, {1, 0}), "_|_");
  });
}

TEST_F(Controls, AListThatNeedsNoScrollBarAnyMoreKeepsNothingOfIt) {
  start();
  modify("optOPT(2)", [this](QWidget& options) {
    act(options, "click optTypeInputs(1)");
    const auto onScreen = options.screen()->grabWindow(options.winId()).toImage();
    // Without a display a scaled screen gives its upper left part only.
    const auto anew = options.grab().toImage().convertToFormat(onScreen.format());
    EXPECT_EQ(onScreen, anew.copy(onScreen.rect()));
  });
}

// The focus ring takes the two outermost pixels of an option button. The caption must not reach
// those at the right.
TEST_F(Controls, CaptionsOfOptionButtonsKeepOffTheFocusRing) {
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

TEST_F(Controls, NothingIsPaintedWhileNothingChanges) {
  start();
  QTest::qWait(50);
  struct : QObject {
    int paints = 0;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
      paints += event->type() == QEvent::Paint;
      return false;
    }
  } counter;
  qApp->installEventFilter(&counter);
  QTest::qWait(50);
  EXPECT_EQ(counter.paints, 0);
}

TEST_F(Controls, AWindowLargerThanTheScreenHasItsCornerOnIt) {
  forms::Form large("large", forms::Border::FixedSingle, 20000, 20000);
  large.centreOnScreen();
  EXPECT_EQ(large.clientArea()->window()->pos(), QPoint(0, 0));
  forms::Form larger("larger", forms::Border::FixedDialog, 30000, 30000);
  larger.centreOver(large);
  EXPECT_EQ(larger.clientArea()->window()->pos(), QPoint(0, 0));
}

TEST_F(Controls, DrivesMayBeEmptyButNotUnreadable) {
  if (support::kPosix) GTEST_SKIP() << "drives are folders, which have entries";
  start();
  modify("optOPT(4)", [&](QWidget& window) {
    auto& drives = get<QComboBox>(window, "Drive1");
    for (const auto* drive : {"Y:\\", "X:\\"}) drives.setCurrentIndex(drives.findText(drive));
    EXPECT_EQ(drives.currentText(), "Y:\\");
    EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0), "Y:\\");
  });
}

TEST_F(Controls, DrivesBeginAtTheInnermostOneThatContainsTheProgram) {
  if (!support::kPosix)
    GTEST_SKIP() << "on Windows the user's folder does not follow the environment";
  const auto home = qgetenv("HOME");
  start();
  // The folder that contains the program's; and the beginning of the program's, up to the blank in
  // its name, which is no folder.
  for (const char end : {'/', ' '}) {
    const auto drive = Module1::AppFolder.substr(0, Module1::AppFolder.rfind(end));
    qputenv("HOME", drive.c_str());
    modify("optOPT(4)", [&, contains = end == '/'](QWidget& window) {
      auto& drives = get<QComboBox>(window, "Drive1");
      const auto first = drives.currentText();
      EXPECT_EQ(first == QString::fromStdString(drive), contains);
      drives.setCurrentText(contains ? "/" : QString::fromStdString(drive));
      EXPECT_EQ(drives.currentText() == first, !contains) << "one that can't be read is left";
      EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0) == "/", contains);
    });
  }
  qputenv("HOME", home);
}

}  // namespace
