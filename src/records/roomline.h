#pragma once

#include <QString>
#include <QStringView>

#include "records/linecolumns.h"

namespace tamo {

// One building system in one room, at one finish area, with its quantity: a line of a room.
//
// Written:  columns  1 to 21  system, blanks behind it
//           columns 22 to 32  finish area, blanks behind it
//           columns 33 to 46  quantity, blanks before it
//           column  47        a blank
//           column  48 on     takeoff unit
// Read back with other columns, below; an empty line is a slot for the next system.
class RoomLine {
 public:
  explicit RoomLine(const QString& text) : text_(text) {}

  // The line for a system; `quantity` is number text. A system over 21, a finish area over 11 or a
  // quantity over 14 characters raises a RunTimeFailure that names it.
  static RoomLine Of(const QString& system, const QString& finishArea, const QString& quantity,
                     const QString& units);

  const QString& Text() const { return text_; }

  // The first 20 characters, trimmed.
  QString System() const;
  // The 10 characters from column 21, trimmed. Column 21 belongs to the name, so a finish area of
  // 10 characters comes back with 9 (held by a test).
  QString FinishArea() const;
  // The number in the 14 characters from column 33.
  double Quantity() const;
  // The 15 characters from column 32, trimmed: the quantity as it is kept when the line is
  // rewritten.
  QString QuantityText() const;

 private:
  QString text_;
};

// The quantity of a room line as it is written. The reports are used to reading other columns of
// it; tests hold each.
inline constexpr ColumnRange kRoomQuantity{33, 14};
inline constexpr ColumnRange kRoomQuantityMerged{32, 15};  // a system that is already listed
inline constexpr ColumnRange kRoomQuantityStart{33, 10};   // copies; a material new on the bill
inline constexpr ColumnRange kRoomQuantityEnd{37, 10};     // a material already on the bill

// The takeoff unit as the merged list reads it: behind column 47, or behind column 43 of a line
// that ends before, trimmed.
QStringView UnitsOfRoomLine(QStringView line);

}  // namespace tamo
