#include "plans/planmeasure.h"

#include <cmath>

#include "common/numbers.h"
#include "plans/lengthtext.h"

namespace tamo {

using Field = TakeoffFields::Field;

PlanMeasure::PlanMeasure(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanScale& scale,
                         TakeoffFields& takeoff)
    : kit_(kit), form_(form), viewer_(viewer), scale_(scale), takeoff_(takeoff) {
  form_.CheckDimension.onClick = [this] { StartCheck(); };
}

// --- What the viewer measures

void PlanMeasure::WarnOfMissingScale() {
  if (!scale_.IsSet())
    kit_.desk.GetMessages().Tell(QStringLiteral("Set scale to a non-zero value."));
}

void PlanMeasure::LineMeasured(double& length, QString& label) {
  const MeasuredLine line = scale_.Measured(length, label);
  if (!line.scaled) return;
  length = line.length;
  label = line.label;
  form_.DistanceText.SetText(LengthText(length));
  HandOver(false);
}

// The same arithmetic while the line is drawn; nothing is handed over.
void PlanMeasure::LineRunning(double& length, QString& label) const {
  const MeasuredLine line = scale_.Measured(length, label);
  length = line.length;
  label = line.label;
}

// Of the free items a count of 0 reaches eLength, but never Hite; a length of 0 reaches neither.
// The room's fields take every number. A test holds it.
void PlanMeasure::CirclesCounted(int count) {
  form_.DistanceText.SetText(QString::number(count));
  HandOver(true);
}

bool PlanMeasure::WaitingField(Field& field) const {
  static const std::pair<const char*, Field> codes[] = {
      {"EL", Field::ELength}, {"EH", Field::Hite}, {"RL", Field::Length}, {"RH", Field::How}};
  for (const auto& [code, waiting] : codes) {
    if (kit_.shared.IAmHere != QLatin1String(code)) continue;
    field = waiting;
    return true;
  }
  return false;
}

void PlanMeasure::HandOver(bool zeroLengthCounts) {
  Field field{};
  if (!WaitingField(field)) return;
  const bool zero = Value(form_.DistanceText.Text()) == 0;
  const bool kept =
      zero && (field == Field::Hite || (field == Field::ELength && !zeroLengthCounts));
  if (!kept) takeoff_.SetText(field, form_.DistanceText.Text());
  if (takeoff_.FormVisible(field)) takeoff_.FocusOn(field);
}

void PlanMeasure::ReturnFocus() {
  Field field{};
  if (WaitingField(field) && takeoff_.FormVisible(field)) takeoff_.FocusOn(field);
}

// --- Checking the scale against a dimension that the plan states

void PlanMeasure::StartCheck() {
  if (!scale_.IsSet()) {
    form_.DimensionResult.SetCaption(QStringLiteral("Choose a scale first."));
    return;
  }
  form_.DimensionResult.SetCaption(QStringLiteral("Draw along the dimension. It leaves no mark."));
  viewer_.PickTool(PlanTool::Measuring);
  viewer_.SetCheckNext(true);
  kit_.desk.Focus(form_.picPdfDraw);
}

bool PlanMeasure::LineChecked(double paperLength) {
  const MeasuredLine line = scale_.Measured(paperLength, QString());
  const QString typed = form_.KnownDimension.Text();
  const double known = FeetOf(typed).value_or(GroupedValue(typed));
  form_.DimensionResult.SetCaption(CheckInWords(line.length, known));
  return known > 0 && std::abs(line.length - known) < kRight;
}

}  // namespace tamo
