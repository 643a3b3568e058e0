#include "plans/savedmarks.h"

#include <QSet>
#include <algorithm>

#include "plans/countgroups.h"

namespace tamo {
namespace {

bool Has(const std::vector<Mark>& totals, const Mark& total) {
  return std::any_of(totals.begin(), totals.end(),
                     [&](const Mark& other) { return SameTotal(other, total); });
}

}  // namespace

void SavedMarks::Read(const std::vector<Mark>& marks) {
  marks_.clear();
  totals_.clear();
  for (const Mark& mark : marks) {
    if (mark.kind == Mark::Kind::Total) {
      totals_.push_back(mark);
    } else {
      marks_.insert(mark.name, mark);
    }
  }
}

void SavedMarks::Saved(const GroupSheets& sheets) {
  marks_.clear();
  for (const Mark& mark : sheets.MarksAsDrawn()) marks_.insert(mark.name, mark);
  totals_ = sheets.Totals();
}

MarkChanges SavedMarks::ChangesTo(const GroupSheets& sheets) const {
  MarkChanges changes;
  changes.markerSize = sheets.MarkerSize();
  QSet<QString> names;
  for (const Mark& mark : sheets.MarksAsDrawn()) {
    names.insert(mark.name);
    const auto saved = marks_.constFind(mark.name);
    if (saved == marks_.constEnd()) {
      changes.added.push_back(mark);
    } else if (*saved != mark) {
      changes.removed.push_back(mark.name);
      changes.added.push_back(mark);
    }
  }
  for (auto saved = marks_.keyBegin(); saved != marks_.keyEnd(); ++saved) {
    if (!names.contains(*saved)) changes.removed.push_back(*saved);
  }
  AddTotals(sheets, changes);
  return changes;
}

void SavedMarks::AddTotals(const GroupSheets& sheets, MarkChanges& changes) const {
  const std::vector<Mark>& totals = sheets.Totals();
  for (const Mark& saved : totals_) {
    if (!Has(totals, saved)) changes.removed.push_back(saved.name);
  }
  for (const Mark& total : totals) {
    if (!Has(totals_, total)) changes.added.push_back(total);
  }
}

MarkChanges SavedMarks::ChangesAnew(const MarkChanges& changes, const GroupSheets& sheets) const {
  MarkChanges all = changes;
  std::erase_if(all.added, [](const Mark& mark) { return mark.kind == Mark::Kind::Total; });
  for (Mark& mark : all.added) {
    for (const Mark& drawn : sheets.MarksAsDrawn()) {
      if (drawn.name == mark.name) mark = drawn;
    }
  }
  AddTotals(sheets, all);
  return all;
}

}  // namespace tamo
