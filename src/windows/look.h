#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include "export/fixedfont.h"

namespace tamo {

// All measures are multiples of this many pixels (device independent).
inline constexpr int kGrid = 8;
inline constexpr int kFieldHeight = 30;

// The colours of the program: calm grounds, one accent. Every pair of text and ground has a
// contrast of at least 4.5 to 1, the prompts' quieter tone too.
struct Look {
  bool dark = false;
  QColor window;        // ground of a window
  QColor base;          // ground of fields and lists
  QColor text;          // on both
  QColor quiet;         // prompts, captions of sections, the status line; on both
  QColor line;          // frames of fields at rest
  QColor faintLine;     // rules between groups
  QColor accent;        // the field in focus, the row in work
  QColor accentGround;  // faint ground of both
  QColor notice;        // ground of the unsaved notice; `text` is readable on it
  QColor noticeLine;

  static Look Light();
  static Look Dark();
  // Light or dark as the platform is, with the platform's own accent where it can be read.
  static Look Of(const QPalette& platform);

  QPalette Palette() const;
};

// Contrast of two colours, 1 to 21.
double Contrast(const QColor& one, const QColor& other);

// Gives the application its style, palette and fonts. May be called again.
void ApplyLook(const Look& look);
const Look& CurrentLook();

QFont PromptFont();   // one size smaller than the fields
QFont SectionFont();  // semibold
QFont FigureFont();   // large, for what is watched from a distance

}  // namespace tamo
