#pragma once

#include <QString>
#include <QStringView>

#include "records/linecolumns.h"

namespace tamo {

// One building system in one free takeoff area, with its quantity.
//
// Written:  column   1 on     system
//           to column 35      blanks, then the quantity, ending in column 35
//           column  36        a blank
//           column  37 on     takeoff unit
// Read back with other columns, below. An empty line is a slot that the estimator inserted.
class AreaLine {
 public:
  explicit AreaLine(const QString& text) : text_(text) {}

  // A system over 20 or a quantity over 14 characters raises a RunTimeFailure that names it.
  static AreaLine Of(const QString& system, const QString& quantity, const QString& units);

  const QString& Text() const { return text_; }

  // The first 20 characters, trimmed.
  QString System() const;
  // The quantity of a linear or count unit: the number in the 15 characters from column 21.
  double LinearQuantity() const;
  // The quantity of a surface unit: the number in the 15 characters from column 22.
  double SurfaceQuantity() const;
  // All but the first 31 characters, trimmed. A stopgap for the field until the system is loaded.
  QString UnitsStopgap() const;

 private:
  QString text_;
};

// The quantity of an area line at its widest. The reports are used to reading other columns of it;
// tests hold each.
inline constexpr ColumnRange kAreaQuantity{22, 14};
inline constexpr ColumnRange kAreaQuantityMerged{21, 15};  // a system that is already listed
inline constexpr ColumnRange kAreaQuantityEnd{25, 11};     // the bill
inline constexpr ColumnRange kAreaQuantityStart{22, 11};   // the bill, order units per takeoff unit

// The takeoff unit as the merged list reads it, trimmed.
QStringView UnitsOfAreaLine(QStringView line);

}  // namespace tamo
