#pragma once

#include <QString>
#include <optional>

namespace tamo {

// A line of a project's takeoff.
struct TakeoffPlace {
  QString project;    // its ID
  bool area = false;  // of a free area, not of a room
  QString sheet;      // the room or area
  QString system;     // as its line reads back
  bool operator==(const TakeoffPlace&) const = default;
  QString InWords() const;  // "Room 101, Paint"
};

// Into which line of the takeoff a mark was entered, as it is kept with the mark in the plan.
struct MarkTie {
  TakeoffPlace place;
  QString entry;        // as it was entered: "10.0", "8 X 10.0"
  bool height = false;  // it gave the height or width of the entry, not its length or count
  QString said;         // the number that the mark said then
  QString units;        // of the line
  double factor = 1;    // of what it says to what it added: the height; 1/9 in square yards
  double before = 0;    // the quantity of the line, before and after the entry
  double after = 0;
  bool operator==(const MarkTie&) const = default;
};

QString TextOfTie(const MarkTie& tie);
// A text that is none: nothing.
std::optional<MarkTie> TieOfText(const QString& text);

}  // namespace tamo
