#pragma once

#include <QStringList>
#include <vector>

#include "plans/comparedsheets.h"
#include "plans/mark.h"

namespace tamo {

// The marks of an old sheet as they come onto the new one.
struct CarriedMarks {
  std::vector<Mark> marks;
  // Of each that stands in a changed place or close beside it: what it is, and what changed there.
  QStringList changed;
  int there = 0;    // that the new sheet has already, by their names
  int outside = 0;  // that lie off the new sheet, and stay where they are
};

// Of `page` with what is known of it. The label of a mark in a changed place says so at its end, of
// a circle its title: its label is its number. Its measure stays what it was. Totals of groups stay
// behind: they are made anew from the circles.
CarriedMarks CarryMarks(const std::vector<Mark>& old, const SheetsCompared& known, PageSize sheet,
                        const std::vector<Mark>& now);

bool SaysDrawingChanged(const Mark& mark);
void DropDrawingChanged(Mark& mark);  // it was looked at

// A line, a circle's middle or an outline lies in the box, or goes through it.
bool MarkTouches(const Mark& mark, const PageBox& box);

}  // namespace tamo
