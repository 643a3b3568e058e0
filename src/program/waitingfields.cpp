#include "program/waitingfields.h"

#include "takeoff/measuredarea.h"

namespace tamo {

WaitingFields::Place WaitingFields::At(Field field) const {
  switch (field) {
    case Field::ELength:
      return {areas_, areas_.measured, areas_.eLength};
    case Field::Hite:
      return {areas_, areas_.measured, areas_.Hite};
    case Field::Length:
      return {rooms_, rooms_.measured, rooms_.Length};
    case Field::How:
      break;
  }
  return {rooms_, rooms_.measured, rooms_.How};
}

bool WaitingFields::FormVisible(Field field) const {
  return !marks_.Moving() && At(field).form.Visible();
}

// A form that is hidden has no line that the plan could name.
void WaitingFields::SetText(Field field, const QString& text) {
  if (marks_.Moving()) return;
  const Place place = At(field);
  const bool named = place.form.Visible();
  place.measured.Into(place.field, text, named ? place.form.TargetOf(place.field) : QString());
  marks_.HandedOver(field, place.field.Text());
}

// What the line gets then waits in its length, as a measured length does.
bool WaitingFields::TakeArea(Field waiting, const QString& squareFeet, QString& words) {
  words.clear();
  if (marks_.Moving()) return false;
  const bool free = waiting == Field::ELength || waiting == Field::Hite;
  if (waiting == Field::How && rooms_.Entering()) {
    words = QStringLiteral("The height of the room is asked for, and an area is none.");
    return false;
  }
  const bool taken = free ? PutArea({areas_.Units, areas_.Hite, areas_.eLength}, squareFeet, words)
                          : PutArea({rooms_.Units, rooms_.How, rooms_.Length}, squareFeet, words);
  const Field length = free ? Field::ELength : Field::Length;
  if (taken) SetText(length, At(length).field.Text());
  return taken;
}

void WaitingFields::FocusOn(Field field) {
  kit_.desk.FocusWithoutActivation(At(field).field);
}

void WaitingFields::Follow() {
  rooms_.measured.Follow();
  areas_.measured.Follow();
  if (ost_.Visible()) ost_.GoesTo.SetCaption(GoesTo());
}

QString WaitingFields::GoesTo() const {
  static const std::pair<const char*, Field> codes[] = {
      {"EL", Field::ELength}, {"EH", Field::Hite}, {"RL", Field::Length}, {"RH", Field::How}};
  const PlanTool tool = ost_.Viewer().Tool();
  const bool counting = tool == PlanTool::Counting || tool == PlanTool::Grouping;
  for (const auto& [code, field] : codes) {
    const Place place = At(field);
    if (kit_.shared.IAmHere != QLatin1String(code) || !place.form.Visible()) continue;
    const QString target = place.form.TargetOf(place.field);
    if (target.isEmpty()) continue;
    const bool length = field == Field::ELength || field == Field::Length;
    return QStringLiteral("%1 goes to: %2")
        .arg(counting ? QStringLiteral("Count")
             : length ? QStringLiteral("Length")
                      : QStringLiteral("Height or width"),
             target);
  }
  return counting ? QStringLiteral("No field is waiting: the count is only shown")
                  : QStringLiteral("No field is waiting: the length is only shown");
}

}  // namespace tamo
