#pragma once

#include <QString>
#include <span>

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

// The viewer's unit index that a unit text stands for: 2 for "m...", 1 for "c...", 0 for all else.
int UnitOfText(const QString& text5);

// The scale in words: 1/4" = 1', 1 mm = 50 ft; "No scale set" when either number is 0.
QString ScaleInWords(const QString& scale1, const QString& scale2, int unit);

}  // namespace tamo
