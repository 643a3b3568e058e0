#pragma once

#include <QString>

#include "common/textrows.h"
#include "reports/pricedsystem.h"

namespace tamo {

// A material or labor line of a copy: its texts stand, once for all takeoff lines, and its figures
// are filled in at the right ends of their columns. A figure wider than its column takes the room
// it needs. A copy of a large bid has millions of them: BM_DetailRow beside BM_PlainDetailRow.
class DetailRow {
 public:
  static DetailRow Material(const PricedBlock& block, bool office);
  static DetailRow Labor(bool office);

  // What a line of the Office Copy is worth: the dollars that its last 14 characters say. It counts
  // as labor by the name at its begin: also a material called "Labor" does.
  struct Worth {
    double dollars = 0;
    bool labor = false;
  };

  // A quantity in hundredths and, in the Office Copy, whole dollars stand in their columns, and the
  // line is worth the dollars.
  bool Fits(double hundredths, double dollars) const {
    return hundredths >= 0 && hundredths < endOfHundredths_ && dollars >= 0 &&
           dollars < endOfDollars_;
  }
  // The line with figures that fit. All of them are of one size.
  QString Text(double hundredths, double dollars) const;
  qsizetype Size() const { return blank_.size(); }
  bool IsLabor() const { return labor_; }

  // Adds the line with any figures.
  Worth AddTo(TextRows& rows, double hundredths, double dollars) const;

 private:
  // `line` is the whole line without its figures: the name up to `quantityFrom`, blanks for the
  // quantity up to `unitFrom`, the unit up to `dollarsFrom`.
  DetailRow(bool office, QString&& line, qsizetype quantityFrom, qsizetype unitFrom,
            qsizetype dollarsFrom);

  bool office_;
  QString blank_;
  qsizetype quantityFrom_;
  qsizetype unitFrom_;
  qsizetype dollarsFrom_;
  bool labor_;
  // Figures of at least 0 and less than these fit.
  double endOfHundredths_ = 0;
  double endOfDollars_ = 0;
};

}  // namespace tamo
