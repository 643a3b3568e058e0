#pragma once

#include <QString>
#include <vector>

#include "reports/namerows.h"
#include "reports/reportsource.h"
#include "reports/systemshelf.h"

namespace tamo {

// Gathers what an estimator should know of a report beside its lines. A note that is made again
// collects the rows that it means.
class NoteBook {
 public:
  void Note(const QString& text, int row) { AddRow(Number(text), row); }
  // The number of a note, which is made when it is new, and a row more for it; -1 for no row.
  int Number(const QString& text);
  void AddRow(int note, int row);
  // The same for the system that `shelf` has at hand, when it has no file in the project, and for
  // each of its materials that reads a figure of 0. `name` is the name in the takeoff.
  void NoteSystem(const SystemShelf& shelf, const QString& name, int row);
  void NoteMissing(const SystemShelf& shelf, const QString& name, int row);
  void NoteZero(const PricedBlock& block, const QString& system, int row);
  std::vector<ReportNote> Take();

 private:
  NameRows texts_;
  std::vector<ReportNote> notes_;
};

// A note as one line: its text and its rows, counted from 1; the first few of many.
QString NoteLine(const ReportNote& note);

}  // namespace tamo
