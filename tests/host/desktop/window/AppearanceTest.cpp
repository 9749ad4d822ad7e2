// Whether people see what is drawn.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QTreeView>
#include <algorithm>
#include <cmath>

#include "host/desktop/Appearance.h"

namespace veldra::host::desktop {
namespace {

/// Perceived lightness, from 0 to 1.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

/// How much lighter than the window the lightest point of a widget's part is.
double contrast(QWidget& widget, const QRect& part) {
  const QImage picture = widget.grab(part).toImage();
  double lightest = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      lightest = std::max(lightest, luminance(picture.pixelColor(x, y)));
    }
  }
  return (lightest + 0.05) / (luminance(widget.palette().color(QPalette::Window)) + 0.05);
}

/// The least contrast with which the edge of a control is said to be seen.
constexpr double Seen = 3;

class AppearanceTest : public testing::Test {
 protected:
  AppearanceTest() { setAppearance(Appearance::Dark); }
  ~AppearanceTest() override {
    setAppearance(Appearance::Light);
    setAppearance(Appearance::System);
  }
};

TEST_F(AppearanceTest, EdgesOfEmptyControlsAreSeenOnDarkWindows) {
  QWidget window;
  QCheckBox box(&window);
  QLineEdit field(&window);
  QPlainTextEdit text(&window);
  QTreeView list(&window);
  for (QWidget* control : std::initializer_list<QWidget*>{&box, &field, &text, &list}) {
    control->resize(100, 60);
    const QRect edge(0, 28, 8, 4);
    EXPECT_GE(contrast(*control, edge), Seen) << control->metaObject()->className();
  }
}

TEST_F(AppearanceTest, TheArrowToWhatAToolBarHidesIsSeenOnDarkWindows) {
  QMainWindow window;
  QToolBar& bar = *window.addToolBar(QStringLiteral("Bar"));
  for (int i = 0; i < 9; ++i) bar.addAction(QStringLiteral("Check Out"));
  window.resize(200, 100);
  window.show();
  QCoreApplication::processEvents();
  auto* const arrow = bar.findChild<QAbstractButton*>(QStringLiteral("qt_toolbar_ext_button"));
  ASSERT_NE(arrow, nullptr);
  ASSERT_TRUE(arrow->isVisible());
  EXPECT_GE(contrast(*arrow, arrow->rect()), Seen);
}

}  // namespace
}  // namespace veldra::host::desktop
