#pragma once

#include <QStringList>

#include "plans/pdfdraw.h"

namespace tamo {

// The legends on the plan: placed, brought up to date, removed.
class PlanLegends {
 public:
  explicit PlanLegends(PdfDraw& viewer) : viewer_(viewer) {}

  // On the sheet in front, of that sheet or of the plan. One that stands there already is brought
  // up to date. It is the chosen mark then.
  void Place(bool ofPlan);
  void Refresh();  // all of them
  void Remove();   // all of them

 private:
  void BringUpToDate(const Mark& mark);
  std::vector<Mark> All() const;
  void Tell(const QString& words);

  PdfDraw& viewer_;
};

// A row for each system: what its marks on the sheet come to, and on the plan.
QStringList TotalRows(const std::vector<Mark>& marks, int page);
QString TotalsHead();

}  // namespace tamo
