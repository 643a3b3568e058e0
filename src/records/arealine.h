#pragma once

#include <QString>

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

}  // namespace tamo
