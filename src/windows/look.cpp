#include "windows/look.h"

#include <QApplication>
#include <QFontDatabase>
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

QString Name(const QColor& colour) {
  return colour.name();
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

Look Look::Light() {
  Look look;
  look.window = QColor(0xf4, 0xf5, 0xf7);
  look.base = QColor(0xff, 0xff, 0xff);
  look.text = QColor(0x1a, 0x1e, 0x24);
  look.quiet = QColor(0x58, 0x61, 0x6c);
  look.line = QColor(0x8a, 0x93, 0x9e);
  look.faintLine = QColor(0xd5, 0xd9, 0xde);
  look.accent = QColor(0x0b, 0x5c, 0xc4);
  look.accentGround = QColor(0xe6, 0xf0, 0xfc);
  look.notice = QColor(0xff, 0xee, 0xc2);
  look.noticeLine = QColor(0xb8, 0x7a, 0x00);
  return look;
}

Look Look::Dark() {
  Look look;
  look.dark = true;
  look.window = QColor(0x20, 0x23, 0x28);
  look.base = QColor(0x17, 0x19, 0x1d);
  look.text = QColor(0xe8, 0xeb, 0xef);
  look.quiet = QColor(0xa7, 0xb0, 0xbb);
  look.line = QColor(0x6c, 0x76, 0x82);
  look.faintLine = QColor(0x3a, 0x40, 0x48);
  look.accent = QColor(0x74, 0xb4, 0xff);
  look.accentGround = QColor(0x1b, 0x2b, 0x40);
  look.notice = QColor(0x4a, 0x38, 0x08);
  look.noticeLine = QColor(0xe0, 0xa8, 0x30);
  return look;
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

QString Look::StyleSheet() const {
  QString sheet = QStringLiteral(R"(
QLineEdit, QPlainTextEdit, RowsView, QListView {
  background: @base; color: @text; border: 1px solid @line; border-radius: 3px;
  selection-background-color: @accent; selection-color: @onAccent;
}
QLineEdit { padding: 3px 6px; min-height: 22px; max-height: 22px; }
QLineEdit[role="figure"] { min-height: 40px; max-height: 40px; }
QLineEdit:read-only { background: @window; border-color: @faint; }
QLineEdit:focus { border: 2px solid @accent; padding: 2px 5px; background: @ground; }
QPlainTextEdit { padding: 4px; }
QPlainTextEdit:focus { border: 2px solid @accent; padding: 3px; background: @ground; }
QListView { padding: 1px; }
QListView:focus { border: 2px solid @accent; padding: 0px; }
QListView[role="drop"] { border: 1px solid @accent; }
QPushButton {
  min-height: 22px; padding: 3px 14px; border: 1px solid @line; border-radius: 3px;
  background: @button; color: @text;
}
QPushButton:hover { border-color: @accent; }
QPushButton:pressed { background: @ground; }
QPushButton:focus { border: 2px solid @accent; padding: 2px 13px; background: @ground; }
QPushButton:disabled { color: @quiet; border-color: @faint; }
QToolButton {
  border: 1px solid @line; border-radius: 3px; padding: 3px 10px; background: @button;
  color: @text;
}
QToolButton:hover { border-color: @accent; }
QToolButton:checked { border: 2px solid @accent; padding: 2px 9px; background: @ground; }
QCheckBox, QRadioButton { padding: 3px; border: 2px solid transparent; border-radius: 3px; }
QCheckBox:focus, QRadioButton:focus { border-color: @accent; background: @ground; }
QLabel[role="prompt"], QLabel[role="quiet"] { color: @quiet; }
QLabel[role="title"] { color: @text; }
QFrame[role="rule"] { background: @faint; border: none; max-height: 1px; min-height: 1px; }
QFrame[role="panel"] { background: @base; border: 1px solid @line; border-radius: 4px; }
QFrame[role="foot"] { background: @window; border: none; border-top: 1px solid @faint; }
QFrame[role="notice"] { background: @notice; border: none; border-top: 2px solid @noticeLine; }
QFrame[role="notice"] QLabel { color: @text; background: transparent; }
QMenuBar { background: @window; color: @text; padding: 2px 8px; }
QMenuBar::item { padding: 5px 6px; margin-right: 1px; border-radius: 3px; background: transparent; }
QMenuBar::item:selected { background: @ground; border: 1px solid @accent; padding: 4px 5px; }
QMenu { background: @base; color: @text; border: 1px solid @line; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 20px; border-radius: 3px; }
QMenu::item:selected { background: @accent; color: @onAccent; }
QMenu::item:disabled { color: @quiet; }
QToolTip { background: @base; color: @text; border: 1px solid @line; padding: 4px; }
)");
  const QPalette palette = Palette();
  const std::pair<const char*, QColor> names[] = {
      {"@noticeLine", noticeLine},
      {"@notice", notice},
      {"@accent", accent},
      {"@ground", accentGround},
      {"@base", base},
      {"@window", window},
      {"@text", text},
      {"@quiet", quiet},
      {"@line", line},
      {"@faint", faintLine},
      {"@button", palette.color(QPalette::Button)},
      {"@onAccent", palette.color(QPalette::HighlightedText)}};
  // Longer names first, so that no name is read as the beginning of another.
  for (const auto& [name, colour] : names) {
    if (QLatin1String(name).size() > 7) sheet.replace(QLatin1String(name), Name(colour));
  }
  for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), Name(colour));
  return sheet;
}

void ApplyLook(const Look& look) {
  Current() = look;
  QApplication::setStyle(new TamoStyle);
  QApplication::setPalette(look.Palette());
  QFont font = QApplication::font();
  if (font.pointSizeF() < kLeastPoints || font.pointSizeF() > 2 * kLeastPoints) {
    font.setPointSizeF(kLeastPoints);
    QApplication::setFont(font);
  }
  qApp->setStyleSheet(look.StyleSheet());
}

const Look& CurrentLook() {
  return Current();
}

QFont FixedFont() {
  // Asked for one by one, each family that is missing costs as much as all other fonts of the
  // start.
  static const QString family = [] {
    const QStringList families = QFontDatabase::families();
    for (const char* name :
         {"MS Gothic", "Noto Sans Mono", "DejaVu Sans Mono", "Consolas", "Menlo"}) {
      if (families.contains(QLatin1String(name), Qt::CaseInsensitive))
        return QString(QLatin1String(name));
    }
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  }();
  QFont font(family);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPointSizeF(QApplication::font().pointSizeF());
  return font;
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
