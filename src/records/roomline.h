#pragma once

#include <QString>

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

}  // namespace tamo
