#include "program/marksonplan.h"

#include "plans/planname.h"

namespace tamo {
namespace {

QString CodeOf(TakeoffFields::Field field) {
  switch (field) {
    case TakeoffFields::Field::ELength:
      return QStringLiteral("EL");
    case TakeoffFields::Field::Hite:
      return QStringLiteral("EH");
    case TakeoffFields::Field::Length:
      return QStringLiteral("RL");
    case TakeoffFields::Field::How:
      break;
  }
  return QStringLiteral("RH");
}

}  // namespace

QString MarksOnPlan::PlanName() const {
  return PlanNameOf(ost_.Viewer().ShownPath());
}

void MarksOnPlan::HandedOver(TakeoffFields::Field field, const QString& text) {
  handed_[CodeOf(field)] = text;
}

bool MarksOnPlan::IsFree(const Mark& mark) const {
  return !owned_.contains(mark.name) && ost_.Viewer().WasDrawnHere(mark.name);
}

// A length has the newest line with that length; a count has all circles that were counted for it.
EntryMarks MarksOnPlan::MarksOf(const std::vector<Measured>& fields) {
  EntryMarks entry{PlanName(), {}};
  const std::vector<Mark> marks = ost_.Viewer().Marks();
  for (const Measured& field : fields) {
    if (handed_.take(QLatin1String(field.field)) != field.text || field.text.isEmpty()) continue;
    const QString label = field.text + QLatin1Char(' ');
    const bool count = !marks.empty() && marks.front().kind == Mark::Kind::Circle;
    for (const Mark& mark : marks) {
      const bool circle = mark.kind == Mark::Kind::Circle;
      if (circle != count || !IsFree(mark)) continue;
      if (!circle && !mark.label.startsWith(label)) continue;
      owned_.insert(mark.name);
      entry.names += mark.name;
      if (!circle) break;
    }
  }
  return entry;
}

bool MarksOnPlan::Reaches(const EntryMarks& marks) const {
  return marks.names.isEmpty() || marks.plan == PlanName();
}

void MarksOnPlan::PutOn(const EntryMarks& marks, bool on) {
  if (marks.names.isEmpty()) return;
  PdfDraw& viewer = ost_.Viewer();
  moving_ = true;
  for (const QString& name : marks.names) {
    Mark mark;
    if (!on && viewer.TakeOff(name, mark)) off_.insert(name, mark);
    if (on && off_.contains(name)) viewer.PutBack(off_.take(name));
  }
  moving_ = false;
  ost_.SaveIt();
}

}  // namespace tamo
