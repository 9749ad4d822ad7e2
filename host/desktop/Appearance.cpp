#include "host/desktop/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStyleFactory>
#include <array>

#include "host/desktop/DarkStyle.h"
#include "host/desktop/window/Icons.h"

namespace veldra::host::desktop {
namespace {

constexpr char SettingName[] = "window/appearance";

struct Row {
  QPalette::ColorRole role;
  const char* light;
  const char* dark;
};

constexpr std::array<Row, 14> Colours = {{{QPalette::Window, "#f5f6f8", "#1f2227"},
                                          {QPalette::WindowText, "#1c2128", "#e6e8eb"},
                                          {QPalette::Base, "#ffffff", "#181b1f"},
                                          {QPalette::AlternateBase, "#f4f7fb", "#20242a"},
                                          {QPalette::Text, "#1c2128", "#e6e8eb"},
                                          {QPalette::PlaceholderText, "#667080", "#97a1af"},
                                          {QPalette::Button, "#eceef2", "#2b3038"},
                                          {QPalette::ButtonText, "#1c2128", "#e6e8eb"},
                                          {QPalette::ToolTipBase, "#ffffff", "#2b3038"},
                                          {QPalette::ToolTipText, "#1c2128", "#e6e8eb"},
                                          {QPalette::Highlight, "#2563c9", "#3b78dd"},
                                          {QPalette::HighlightedText, "#ffffff", "#ffffff"},
                                          {QPalette::Link, "#1d55b4", "#7fb0ff"},
                                          {QPalette::BrightText, "#b91c1c", "#ff7b72"}}};

QPalette paletteOf(bool isDark) {
  const auto colourOf = [isDark](const Row& row) { return QColor(isDark ? row.dark : row.light); };
  // The shades of frames follow from button and window.
  QPalette palette(colourOf(Colours[6]), colourOf(Colours[0]));
  for (const Row& row : Colours) palette.setColor(row.role, colourOf(row));
  const QColor faint(isDark ? "#6b7480" : "#9aa3ae");
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  return palette;
}

}  // namespace

Appearance savedAppearance() {
  const int number = QSettings().value(SettingName, 0).toInt();
  return number == 1 ? Appearance::Light : number == 2 ? Appearance::Dark : Appearance::System;
}

void saveAppearance(Appearance appearance) {
  QSettings().setValue(SettingName, static_cast<int>(appearance));
}

void setAppearance(Appearance appearance) {
  forgetIcons();
  if (appearance == Appearance::System) {
    QApplication::setPalette(QPalette());
    return;
  }
  const bool isDark = appearance == Appearance::Dark;
  QApplication::setStyle(isDark ? makeDarkStyle().release() : QStyleFactory::create("Fusion"));
  QApplication::setPalette(paletteOf(isDark));
}

}  // namespace veldra::host::desktop
