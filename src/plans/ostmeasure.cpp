#include "common/columns.h"
#include "common/numbers.h"
#include "plans/mark.h"
#include "plans/ostform.h"

// The scale, and what is measured by it into the takeoff.

namespace tamo {

using Field = TakeoffFields::Field;

ScaleTexts OSTForm::Scale() const {
  return {Scale1.Text(), Scale2.Text(), Text5.Text()};
}

// The unit text goes first, so that the saves that the numbers cause write all three fields.
void OSTForm::ChooseScale(const ScaleEntry& scale) {
  if (!scale.acts) return;
  recordSaved_ = false;
  if (scale.text5 != nullptr) {
    Text5.SetText(QLatin1String(scale.text5));
    SetUnitByText5();
  }
  if (scale.isScale != nullptr) IsScale.SetText(QLatin1String(scale.isScale));
  Scale1.SetText(QLatin1String(scale.scale1));
  Scale2.SetText(QLatin1String(scale.scale2));
  inchesChosen_ = scale.text5 == nullptr;
  if (!recordSaved_) SaveRecord();
  ShowScale();
}

void OSTForm::SaveRecord() {
  if (Loading()) return;
  keeper_.SaveJobNFO();
  recordSaved_ = true;
}

void OSTForm::ScaleChanged() {
  inchesChosen_ = false;
  SaveRecord();
  ShowScale();
}

// An inch scale chosen after a metric one leaves the viewer in its metric unit. A test holds it;
// ScaleInForce warns of it.
void OSTForm::SetUnitByText5() {
  const int unit = UnitOfText(Text5.Text());
  if (unit != PdfDraw::Inches) {
    viewer_.SetUnitIndex(unit);
    viewer_.SetUnitName(unit == PdfDraw::Millimetres ? QStringLiteral("mm") : QStringLiteral("cm"));
  }
  ShowScale();
}

void OSTForm::ShowScale() {
  static const QString units[] = {QStringLiteral("inches"), QStringLiteral("cm"),
                                  QStringLiteral("mm")};
  const int meant = inchesChosen_ ? int{PdfDraw::Inches} : UnitOfText(Text5.Text());
  QString words = ScaleInWords(Scale1.Text(), Scale2.Text(), meant);
  const bool differs = viewer_.UnitIndex() != meant;
  if (differs) words += QStringLiteral(" - viewer still in ") + units[viewer_.UnitIndex()];
  ScaleInForce.SetCaption(words);
  SetInches.SetShown(differs && meant == PdfDraw::Inches);
}

void OSTForm::SetViewerToInches() {
  viewer_.SetUnitIndex(PdfDraw::Inches);
  viewer_.SetUnitName(QStringLiteral("feet"));
  if (UnitOfText(Text5.Text()) != PdfDraw::Inches) {
    Text5.SetText(QLatin1String(kInchText));
    SaveRecord();
  }
  ShowScale();
}

// --- What the viewer measures

void OSTForm::WarnOfMissingScale() {
  if (Value(Scale1.Text()) == 0 || Value(Scale2.Text()) == 0)
    kit_.desk.GetMessages().Tell(QStringLiteral("Set scale to a non-zero value."));
}

void OSTForm::LineMeasured(double& length, QString& label) {
  const double plan = viewer_.EvaluateFraction(Scale1.Text());
  const MeasuredLine line = ScaledLine(length, plan, Scale(), viewer_.UnitName(), label);
  if (!line.scaled) return;
  length = line.length;
  label = line.label;
  DistanceText.SetText(LengthText(length));
  HandOver(false);
}

// Of the free items a count of 0 reaches eLength, but never Hite; a length of 0 reaches neither.
// The room's fields take every number. A test holds it.
void OSTForm::CirclesCounted(int count) {
  DistanceText.SetText(QString::number(count));
  HandOver(true);
}

bool OSTForm::WaitingField(Field& field) const {
  static const std::pair<const char*, Field> codes[] = {
      {"EL", Field::ELength}, {"EH", Field::Hite}, {"RL", Field::Length}, {"RH", Field::How}};
  for (const auto& [code, waiting] : codes) {
    if (kit_.shared.IAmHere != QLatin1String(code)) continue;
    field = waiting;
    return true;
  }
  return false;
}

void OSTForm::HandOver(bool zeroLengthCounts) {
  Field field{};
  if (!WaitingField(field)) return;
  const bool zero = Value(DistanceText.Text()) == 0;
  const bool kept =
      zero && (field == Field::Hite || (field == Field::ELength && !zeroLengthCounts));
  if (!kept) takeoff_.SetText(field, DistanceText.Text());
  if (takeoff_.FormVisible(field)) takeoff_.FocusOn(field);
}

void OSTForm::ReturnFocus() {
  Field field{};
  if (WaitingField(field) && takeoff_.FormVisible(field)) takeoff_.FocusOn(field);
}

void OSTForm::ClearDistance() {
  DistanceText.Clear();
}

void OSTForm::ClearXY() {
  Mode.SetText(QStringLiteral("Released"));
}

// --- Checking the scale against a dimension that the plan states

void OSTForm::StartCheck() {
  if (Value(Scale1.Text()) == 0 || Value(Scale2.Text()) == 0) {
    DimensionResult.SetCaption(QStringLiteral("Choose a scale first."));
    return;
  }
  DimensionResult.SetCaption(QStringLiteral("Draw along the dimension. It leaves no mark."));
  viewer_.PickTool(PdfDraw::Measuring);
  viewer_.SetCheckNext(true);
  kit_.desk.Focus(picPdfDraw);
}

void OSTForm::LineChecked(double paperLength) {
  const double plan = viewer_.EvaluateFraction(Scale1.Text());
  const MeasuredLine line = ScaledLine(paperLength, plan, Scale(), viewer_.UnitName(), QString());
  DimensionResult.SetCaption(CheckInWords(line.length, GroupedValue(KnownDimension.Text())));
}

}  // namespace tamo
