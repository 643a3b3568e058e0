#pragma once

#include <QStringList>
#include <vector>

#include "common/control.h"
#include "common/textrows.h"
#include "reports/reportsource.h"
#include "reports/uncounted.h"

namespace tamo {

// What the report in the window says beside its lines: what was not counted, above all else, and
// what its columns hide. A list shows it; clicking one of them leads to its row.
class ReportRemarks {
 public:
  // The list outlives it.
  explicit ReportRemarks(OrderedList& list) : list_(list) {}

  // Gathers what the report that is being made can't count.
  Uncounted& Missed() { return uncounted_; }
  const Uncounted& Missed() const { return uncounted_; }

  void Clear();  // and hides the list
  // The report stands, with these notes.
  void Take(std::vector<ReportNote> notes);

  // The first row that the note means on which the list stands; -1 for none.
  int RowMeant() const;
  // A report that leaves the window says behind its title what it did not count.
  ListRows Within(const ListRows& report) const;

 private:
  OrderedList& list_;
  std::vector<ReportNote> notes_;
  Uncounted uncounted_;
};

}  // namespace tamo
