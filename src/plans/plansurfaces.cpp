#include "plans/plansurfaces.h"

#include "common/numbers.h"
#include "plans/mark.h"

namespace tamo {

using Field = TakeoffFields::Field;

namespace {

QString HintOf(PlanTool tool) {
  switch (tool) {
    case PlanTool::Polyline:
      return QStringLiteral(
          "Polyline: set points, Enter ends it. B: an arc next. Backspace takes a point back.");
    case PlanTool::Area:
      return QStringLiteral(
          "Area: set corners, Enter closes it; or drag a rectangle. B: an arc next. Backspace "
          "takes "
          "one back.");
    case PlanTool::Rectangle:
      return QStringLiteral("Rectangle: set one corner and the one across.");
    case PlanTool::CutOut:
      return QStringLiteral(
          "Cut-out: set corners inside an area, Enter closes it; or drag a rectangle.");
    case PlanTool::Perimeter:
      return QStringLiteral("Perimeter: set corners, Enter closes it and gives the length around.");
    default:
      return {};
  }
}

}  // namespace

// An area of 0.0 changes no field, as a length of 0 does not.
void PlanSurfaces::AreaMeasured(double& area, QString& label) {
  AreaRunning(area, label);
  if (!scale_.IsSet())
    return Refused(QStringLiteral("Set a scale: without one there are no square feet."));
  const QString text = LengthText(area);
  form_.DistanceText.SetText(text);
  Field field{};
  if (GroupedValue(text) == 0 || !measure_.WaitingField(field)) return;
  QString words;
  const bool taken = takeoff_.TakeArea(field, text, words);
  Refused(words);
  if (field == Field::Hite) field = Field::ELength;
  if (field == Field::How) field = Field::Length;
  if (taken && takeoff_.FormVisible(field)) takeoff_.FocusOn(field);
}

void PlanSurfaces::AreaRunning(double& area, QString& label) const {
  const MeasuredArea measured = scale_.MeasuredSurface(area, label);
  area = measured.area;
  label = measured.label;
}

void PlanSurfaces::ToolPicked(PlanTool tool) {
  hint_ = HintOf(tool);
  Refused(QString());
}

void PlanSurfaces::Refused(const QString& why) {
  form_.ToolHint.SetCaption(why.isEmpty() ? hint_ : why);
  form_.ToolHint.SetHover(form_.ToolHint.Caption());
}

}  // namespace tamo
