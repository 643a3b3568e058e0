#include "plans/planscale.h"

#include "common/numbers.h"

namespace tamo {

PlanScale::PlanScale(OstControls& form, PdfDraw& viewer, PlanRecord& record)
    : form_(form), viewer_(viewer), record_(record) {
  Bind();
  Show();
}

void PlanScale::Bind() {
  for (TextField* number : {&form_.Scale1, &form_.Scale2}) {
    number->onChange = [this] {
      inchesChosen_ = false;
      saved_ = true;
      record_.SaveUnlessLoading();
      Show();
    };
  }
  form_.Text5.onChange = [this] {
    inchesChosen_ = false;
    SetUnitByText5();
  };
  form_.SetInches.onClick = [this] { SetViewerToInches(); };
}

ScaleTexts PlanScale::Texts() const {
  return {form_.Scale1.Text(), form_.Scale2.Text(), form_.Text5.Text()};
}

bool PlanScale::IsSet() const {
  return Value(form_.Scale1.Text()) != 0 && Value(form_.Scale2.Text()) != 0;
}

MeasuredLine PlanScale::Measured(double paperLength, const QString& label) const {
  const double plan = viewer_.EvaluateFraction(form_.Scale1.Text());
  return ScaledLine(paperLength, plan, Texts(), viewer_.UnitName(), label);
}

MeasuredArea PlanScale::MeasuredSurface(double paperArea, const QString& label) const {
  const double plan = viewer_.EvaluateFraction(form_.Scale1.Text());
  return ScaledArea(paperArea, plan, Texts(), viewer_.UnitName(), label);
}

// The unit text goes first, so that the saves that the numbers cause write all three fields.
void PlanScale::Choose(const ScaleEntry& scale) {
  if (!scale.acts) return;
  saved_ = false;
  taking_ = true;
  if (scale.text5 != nullptr) {
    form_.Text5.SetText(QLatin1String(scale.text5));
    SetUnitByText5();
  }
  if (scale.isScale != nullptr) form_.IsScale.SetText(QLatin1String(scale.isScale));
  form_.Scale1.SetText(QLatin1String(scale.scale1));
  form_.Scale2.SetText(QLatin1String(scale.scale2));
  inchesChosen_ = scale.text5 == nullptr;
  taking_ = false;
  if (!saved_) record_.SaveUnlessLoading();
  Show();
}

void PlanScale::Take(const ScaleTexts& scale) {
  saved_ = false;
  taking_ = true;
  if (UnitOfText(scale.text5) == PaperUnit::Inches) {
    viewer_.SetUnit(PaperUnit::Inches);
    viewer_.SetUnitName(QStringLiteral("feet"));
  }
  form_.Text5.SetText(scale.text5);
  SetUnitByText5();
  form_.Scale1.SetText(scale.scale1);
  form_.Scale2.SetText(scale.scale2);
  taking_ = false;
  if (!saved_) record_.SaveUnlessLoading();
  Show();
}

// An inch scale chosen after a metric one leaves the viewer in its metric unit. A test holds it;
// ScaleInForce warns of it.
void PlanScale::SetUnitByText5() {
  const PaperUnit unit = UnitOfText(form_.Text5.Text());
  if (unit != PaperUnit::Inches) {
    viewer_.SetUnit(unit);
    viewer_.SetUnitName(unit == PaperUnit::Millimetres ? QStringLiteral("mm")
                                                       : QStringLiteral("cm"));
  }
  Show();
}

void PlanScale::Show() {
  const PaperUnit meant = inchesChosen_ ? PaperUnit::Inches : UnitOfText(form_.Text5.Text());
  QString words = ScaleInWords(form_.Scale1.Text(), form_.Scale2.Text(), meant);
  const bool differs = viewer_.Unit() != meant;
  if (differs) words += QStringLiteral(" - viewer still in ") + UnitInWords(viewer_.Unit());
  form_.ScaleInForce.SetCaption(words);
  form_.SetInches.SetShown(differs && meant == PaperUnit::Inches);
  viewer_.ScaleChanged();
  // One field after the other they are no scale that anybody chose.
  if (onShown && !taking_) onShown();
}

void PlanScale::SetViewerToInches() {
  viewer_.SetUnit(PaperUnit::Inches);
  viewer_.SetUnitName(QStringLiteral("feet"));
  if (UnitOfText(form_.Text5.Text()) != PaperUnit::Inches) {
    form_.Text5.SetText(QLatin1String(kInchText));
    record_.SaveUnlessLoading();
  }
  Show();
}

}  // namespace tamo
