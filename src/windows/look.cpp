#include "windows/look.h"

#include <QApplication>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "windows/tamostyle.h"

namespace tamo {
namespace {

constexpr double kLeastPoints = 10.5;
constexpr double kLeastContrast = 4.5;

Look& Current() {
  static Look look = Look::Light();
  return look;
}

double Channel(double value) {
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Channel(colour.redF()) + 0.7152 * Channel(colour.greenF()) +
         0.0722 * Channel(colour.blueF());
}

QColor Mix(const QColor& one, const QColor& other, double share) {
  return QColor::fromRgbF(static_cast<float>(one.redF() * (1 - share) + other.redF() * share),
                          static_cast<float>(one.greenF() * (1 - share) + other.greenF() * share),
                          static_cast<float>(one.blueF() * (1 - share) + other.blueF() * share));
}

// `colour` moved towards `away` until it can be read on `ground`.
QColor Readable(QColor colour, const QColor& ground, const QColor& away) {
  for (int step = 0; step < 20 && Contrast(colour, ground) < kLeastContrast; ++step)
    colour = Mix(colour, away, 0.1);
  return colour;
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

Look Look::Light() {
  return {.dark = false,
          .window = QColor(0xf4, 0xf5, 0xf7),
          .base = QColor(0xff, 0xff, 0xff),
          .text = QColor(0x1a, 0x1e, 0x24),
          .quiet = QColor(0x58, 0x61, 0x6c),
          .line = QColor(0x8a, 0x93, 0x9e),
          .faintLine = QColor(0xd5, 0xd9, 0xde),
          .accent = QColor(0x0b, 0x5c, 0xc4),
          .accentGround = QColor(0xe6, 0xf0, 0xfc),
          .notice = QColor(0xff, 0xee, 0xc2),
          .noticeLine = QColor(0xb8, 0x7a, 0x00)};
}

Look Look::Dark() {
  return {.dark = true,
          .window = QColor(0x20, 0x23, 0x28),
          .base = QColor(0x17, 0x19, 0x1d),
          .text = QColor(0xe8, 0xeb, 0xef),
          .quiet = QColor(0xa7, 0xb0, 0xbb),
          .line = QColor(0x6c, 0x76, 0x82),
          .faintLine = QColor(0x3a, 0x40, 0x48),
          .accent = QColor(0x74, 0xb4, 0xff),
          .accentGround = QColor(0x1b, 0x2b, 0x40),
          .notice = QColor(0x4a, 0x38, 0x08),
          .noticeLine = QColor(0xe0, 0xa8, 0x30)};
}

Look Look::Of(const QPalette& platform) {
  const bool dark = Luminance(platform.color(QPalette::Window)) < 0.2;
  Look look = dark ? Dark() : Light();
  const QColor accent = platform.color(QPalette::Highlight);
  // A grey highlight would not find the field in focus from an arm's length.
  if (accent.isValid() && accent.hsvSaturationF() > 0.35F) {
    look.accent = Readable(accent, look.base, look.text);
    look.accent = Readable(look.accent, look.window, look.text);
    look.accentGround = Mix(look.base, look.accent, dark ? 0.18 : 0.1);
  }
  return look;
}

QPalette Look::Palette() const {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::PlaceholderText, quiet);
  palette.setColor(QPalette::Button, dark ? QColor(0x2c, 0x31, 0x38) : QColor(0xee, 0xf0, 0xf3));
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, base);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, dark ? QColor(0x0c, 0x12, 0x1a) : base);
  palette.setColor(QPalette::ToolTipBase, base);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Link, accent);
  palette.setColor(QPalette::Mid, faintLine);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, Mix(quiet, window, 0.25));
  }
  return palette;
}

void ApplyLook(const Look& look) {
  Current() = look;
  QApplication::setStyle(new TamoStyle);
  QApplication::setPalette(look.Palette());
  // What stands in a field is read as well when nothing can be entered there.
  QPalette fields = look.Palette();
  fields.setColor(QPalette::Disabled, QPalette::Text, look.text);
  for (const char* kind : {"QLineEdit", "QPlainTextEdit", "QListView"})
    QApplication::setPalette(fields, kind);
  QToolTip::setPalette(look.Palette());
  QFont font = QApplication::font();
  if (font.pointSizeF() < kLeastPoints || font.pointSizeF() > 2 * kLeastPoints) {
    font.setPointSizeF(kLeastPoints);
    QApplication::setFont(font);
  }
}

const Look& CurrentLook() {
  return Current();
}

QFont PromptFont() {
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() - 1);
  return font;
}

QFont SectionFont() {
  QFont font = QApplication::font();
  font.setWeight(QFont::DemiBold);
  return font;
}

QFont FigureFont() {
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * 2);
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace tamo
