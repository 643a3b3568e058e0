#pragma once

#include <QString>

#include "common/textrows.h"
#include "reports/bidchanges.h"
#include "reports/sheetlines.h"

namespace tamo {

// The lines of a comparison, 76 columns wide; a longer name makes its line longer.
class CompareLines {
 public:
  void Head(const QString& project, const QString& then, const QString& now);
  void Total(const FigureChange& total);
  void MovedMost(const BidChanges& changes);
  void Systems(const std::vector<SystemChange>& systems);
  void Figures(const QString& title, const std::vector<FigureChange>& figures);
  void Manhours(double then, double now);
  void Sum(const BidChanges& changes);
  void Sheets(const QString& what, const std::vector<SheetChange>& sheets);
  void Plain(const QString& line) { lines_ += line; }

  TextRows Take() { return std::move(lines_); }

 private:
  void System(const SystemChange& change);
  static QString SystemSide(const char* label, const SystemFigures* system);
  void Figure(const FigureChange& figure);

  TextRows lines_;
};

// What is another: "price", "new"; "" for the same.
QString KindText(SystemChange::Kind kind);

// "1250.00", "-3.50"; with a sign "+1250.00", and "0.00" for nothing.
QString CentsText(qint64 cents);
QString SignedCentsText(qint64 cents);

}  // namespace tamo
