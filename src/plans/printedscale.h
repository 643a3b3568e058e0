#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "plans/pagelines.h"

namespace tamo {

// A scale that a sheet states in its own words.
struct PrintedScale {
  bool notToScale = false;
  double feetPerInch = 0;  // of paper; 0 when it is not to scale
  QString scale1;          // the scale's two numbers for inches of paper: "1/4" and "1"
  QString scale2;
  PagePoint at;  // where it stands
};

// The scale that a line of text states: SCALE: 1/8" = 1'-0", 1"=20', 1:100, NOT TO SCALE, N.T.S.;
// none when it states none ("AS NOTED") or a ratio without the word scale.
std::optional<PrintedScale> ScaleOfText(const QString& text);

// All that a page states, in the order of its lines.
std::vector<PrintedScale> ScalesOf(const PageContent& content);
std::vector<PrintedScale> ScalesOf(const std::vector<PageTextLine>& lines);

}  // namespace tamo
