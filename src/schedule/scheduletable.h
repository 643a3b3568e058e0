#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// What a column of a schedule tells about a room.
enum class ColumnRole {
  Other,
  Number,
  Name,
  NumberAndName,
  Floor,
  Base,
  North,
  East,
  South,
  West,
  Walls,
  NorthSouth,
  EastWest,
  Ceiling,
  Height,
  Remarks
};

enum class TableKind { Unknown, Finish, Door, Window, Legend, Matrix };

// Why a cell is not sure.
enum class Doubt {
  OverBorder,     // its text crosses the border to its neighbour
  WhichColumn,    // its text may belong to the column beside it
  WhichRow,       // its text may belong to the row above or below
  Overlapping,    // two texts lie over each other
  UnknownLetter,  // the file doesn't tell what a letter is
  NothingAbove,   // a ditto mark with nothing above it
  NoNumber,       // the row has no room number
  Merged,         // one cell that stands for several rows or columns
  GuessedHead,    // the head of its column could mean something else
  TurnedText,     // text that reads in another direction than its table
  FromPicture,    // read from a picture
};
QString DoubtText(Doubt doubt);  // in plain words

struct ScheduleCell {
  QString text;  // as drawn, lines joined by a blank
  PageBox box;   // of its words, points on the page as displayed; empty for a blank cell
  std::vector<Doubt> doubts;

  bool Unsure() const { return !doubts.empty(); }
  void Add(Doubt doubt);
};

struct ScheduleColumn {
  QString head;  // merged heads above it and its own, joined by one blank
  ColumnRole role = ColumnRole::Other;
  bool guessed = false;  // the role is no more than likely
  double left = 0;
  double right = 0;
};

struct ScheduleRow {
  std::vector<ScheduleCell> cells;  // one a column
  double top = 0;
  double bottom = 0;
};

// A title between the rows ("FIRST FLOOR"), before row `before`, from 0.
struct ScheduleGroup {
  int before = 0;
  QString text;
};

// One table as it stands on a page, or one part of it.
struct ScheduleTable {
  TableKind kind = TableKind::Unknown;
  double confidence = 0;  // 0 to 1, that it is of this kind
  PageBox box;            // around its ruling, points on the page as displayed
  QString title;
  std::vector<ScheduleColumn> columns;
  std::vector<ScheduleRow> rows;
  std::vector<ScheduleGroup> groups;

  int ColumnOf(ColumnRole role) const;  // the first one; -1
};

}  // namespace tamo
