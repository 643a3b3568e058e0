#include "program/marksonplan.h"

#include "plans/markaccount.h"
#include "plans/marktie.h"
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

// A count has all circles that were counted for it; square feet their area and what was cut out of
// it since, negative ones only what was cut out of an area that was entered before; a length the
// newest mark that says it.
QStringList MarksOnPlan::MarksBehind(const QString& text, const std::vector<Mark>& marks) const {
  QStringList names;
  const bool count = !marks.empty() && IsCount(marks.front().kind);
  const bool off = text.startsWith(QLatin1Char('-'));
  const QString label = text + QLatin1Char(' ');
  for (const Mark& mark : marks) {
    if (count != IsCount(mark.kind) || !IsFree(mark)) continue;
    // Of a group its own circles only.
    if (count && mark.group != marks.front().group) continue;
    const bool cut = mark.kind == Mark::Kind::CutOut;
    const bool surface =
        mark.kind == Mark::Kind::Area && !off && (!names.isEmpty() || IsNewest(mark, marks));
    if (!count && !cut && !surface && (!names.isEmpty() || !mark.label.startsWith(label))) continue;
    names += mark.name;
    if (!count && !cut) break;
  }
  return names;
}

bool MarksOnPlan::IsNewest(const Mark& mark, const std::vector<Mark>& marks) const {
  for (const Mark& other : marks) {
    if (!IsCount(other.kind) && IsFree(other)) return other.name == mark.name;
  }
  return false;
}

// Each mark keeps the line it went into. Square yards are a ninth of what an area says.
void MarksOnPlan::Tie(const QStringList& names, const Measured& field, const EnteredLine& line) {
  const bool height = field.field[1] == 'H';
  for (const QString& name : names) {
    const Mark* mark = ost_.Viewer().FindMark(name);
    if (mark == nullptr) continue;
    MarkTie tie{{shared_.JobID, line.area, line.sheet, line.system},
                line.entry,
                height,
                SaidBy(*mark),
                line.units,
                line.height,
                line.before,
                line.after};
    if (IsSurface(mark->kind) && line.units == QLatin1String("SY")) tie.factor /= 9;
    ost_.Viewer().KeepWith(name, TextOfTie(tie));
  }
}

EntryMarks MarksOnPlan::MarksOf(const std::vector<Measured>& fields, const EnteredLine& line) {
  EntryMarks entry{PlanName(), {}};
  std::vector<Mark> marks = ost_.Viewer().Marks();
  std::erase_if(marks, [](const Mark& mark) { return mark.kind == Mark::Kind::Legend; });
  for (const Measured& field : fields) {
    if (handed_.take(QLatin1String(field.field)) != field.text || field.text.isEmpty()) continue;
    const QStringList names = MarksBehind(field.text, marks);
    for (const QString& name : names) owned_.insert(name);
    Tie(names, field, line);
    entry.names += names;
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
