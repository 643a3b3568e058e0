#include <algorithm>

#include "plans/plansession.h"

// The totals of counting groups in the file: labels that are made anew from the circles whenever
// these are saved.

namespace tamo {
namespace {

bool Has(const std::vector<Mark>& totals, const Mark& total) {
  return std::any_of(totals.begin(), totals.end(),
                     [&](const Mark& other) { return SameTotal(other, total); });
}

}  // namespace

void PdfDraw::Session::KnowTotals(const std::vector<Mark>& marks) {
  for (const Mark& mark : marks) {
    if (mark.kind != Mark::Kind::Total) continue;
    savedTotals.push_back(mark);
    saved.remove(mark.name);
  }
}

void PdfDraw::AddTotals(MarkChanges& changes) const {
  const std::vector<Mark> totals = Totals();
  for (const Mark& saved : session_->savedTotals) {
    if (!Has(totals, saved)) changes.removed.push_back(saved.name);
  }
  for (const Mark& total : totals) {
    if (!Has(session_->savedTotals, total)) changes.added.push_back(total);
  }
}

// Where another program has written to the plan, its circles count, too, and numbers that both gave
// are told apart.
MarkChanges PdfDraw::WithTotalsAnew(const MarkChanges& changes) const {
  MarkChanges all = changes;
  std::erase_if(all.added, [](const Mark& mark) { return mark.kind == Mark::Kind::Total; });
  for (Mark& mark : all.added) {
    for (const Mark& drawn : MarksAsDrawn()) {
      if (drawn.name == mark.name) mark = drawn;
    }
  }
  AddTotals(all);
  return all;
}

}  // namespace tamo
