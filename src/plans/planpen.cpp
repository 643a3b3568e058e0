#include "plans/planpen.h"

#include <cmath>
#include <span>

#include "workspace/swatches.h"

namespace tamo {

namespace {

constexpr double kPointsOfAPixel = 72 / 96.0;

}  // namespace

PlanPen::PlanPen(const Kit& kit, OstControls& form, PdfDraw& viewer)
    : kit_(kit), form_(form), viewer_(viewer) {
  form_.ColorFrame.Hide();
  for (const SwatchRow& row : std::span(kSwatches).first(kPlanSwatches)) {
    auto swatch =
        std::make_unique<Swatch>(form_, QLatin1String(row.name), QLatin1String(row.caption));
    swatch->PutInto(form_.ColorFrame);
    swatch->onClick = [this, code = QString(QLatin1String(row.stored))] { Choose(code); };
    swatches_.push_back(std::move(swatch));
  }
  form_.Check1.onChange = [this] { form_.Line1.SetShown(form_.Check1.Value() == 1); };
}

void PlanPen::Load() {
  for (size_t i = 0; i < swatches_.size(); ++i) {
    swatches_[i]->SetColour(QLatin1String(kSwatches[i].painted));
  }
  kit_.shared.LineColor = QStringLiteral("255000000");
  form_.Line1.SetColour(kit_.shared.LineColor);
  form_.Line1.SetWidth(kit_.shared.LineWidth);
  form_.Check1.SetValue(1);
}

// The width of the sample line is in pixels of 1/96 inch, that of a mark in points.
void PlanPen::ModeChanged(PlanTool tool) {
  if (tool != PlanTool::Measuring && !PdfDraw::DrawsOutlines(tool)) {
    form_.Mode.SetText(QStringLiteral("Released"));
    return;
  }
  form_.Mode.SetText(QStringLiteral("Measuring"));
  viewer_.SetMarkColour(kit_.shared.LineColor);
  viewer_.SetMarkWidth(kit_.shared.LineWidth * kPointsOfAPixel);
}

// With no tool in hand the next mark begins with a measure, and that takes the width of Settings.
void PlanPen::ShowPen() {
  const bool settled = viewer_.Tool() != PlanTool::None;
  form_.Line1.SetColour(viewer_.MarkColour());
  form_.Line1.SetWidth(settled
                           ? static_cast<int>(std::lround(viewer_.MarkWidth() / kPointsOfAPixel))
                           : kit_.shared.LineWidth);
}

// For the moment only: the next time measuring begins, the colour of the system in work comes back.
void PlanPen::Choose(const QString& code) {
  form_.ColorFrame.Hide();
  form_.Line1.SetColour(code);
  viewer_.SetMarkColour(form_.Line1.Colour());
  viewer_.Hand().Recolour(form_.Line1.Colour());
}

}  // namespace tamo
