#pragma once

#include <QString>
#include <span>

#include "plans/paperunit.h"

namespace tamo {

// One entry of the Scale menu: the plan length (Scale1) that stands for so many feet (Scale2), and
// the unit text (Text5) whose first character says in what the paper is measured.
struct ScaleEntry {
  const char* name;
  const char* caption;
  const char* scale1;
  const char* scale2;
  const char* text5;    // nullptr: the entry leaves Text5 as it stands
  const char* isScale;  // nullptr: the entry leaves IsScale as it stands
  bool acts;            // false: the entry is offered and does nothing
};

// A double quote, a blank, "=", thirteen blanks, an apostrophe.
extern const char kInchText[];
extern const char kMillimetreText[];
extern const char kCentimetreText[];

std::span<const ScaleEntry> InchScales();        // the inch and the engineer's scales
std::span<const ScaleEntry> MillimetreScales();  // on the submenu Metric, as the next
std::span<const ScaleEntry> CentimetreScales();

// The paper unit that a unit text stands for: millimetres for "m...", centimetres for "c...",
// inches for all else.
PaperUnit UnitOfText(const QString& text5);
QString UnitInWords(PaperUnit unit);  // "inches", "cm", "mm"

// The scale in words: 1/4" = 1', 1 mm = 50 ft; "No scale set" when either number is 0.
QString ScaleInWords(const QString& scale1, const QString& scale2, PaperUnit unit);

}  // namespace tamo
