#include "plans/sheetscales.h"

#include <algorithm>
#include <cmath>

#include "common/numbers.h"
#include "plans/fraction.h"
#include "plans/lengthtext.h"
#include "plans/planname.h"

namespace tamo {
namespace {

constexpr double kAlike = 0.003;        // two scales that differ by less are one
constexpr double kShortestDrawn = 0.5;  // inches of paper; less is too short to set a scale by

bool Alike(double one, double other) {
  return std::abs(one - other) <= kAlike * std::max(one, other);
}

QString InWords(const ScaleTexts& scale) {
  return ScaleInWords(scale.scale1, scale.scale2, UnitOfText(scale.text5));
}

ScaleTexts TextsOf(const PrintedScale& printed) {
  return {printed.scale1, printed.scale2, QLatin1String(kInchText)};
}

bool IsUsual(const ScaleTexts& scale) {
  const auto scales = InchScales();
  return std::any_of(scales.begin(), scales.end(), [&](const ScaleEntry& entry) {
    return scale.scale1 == QLatin1String(entry.scale1) &&
           scale.scale2 == QLatin1String(entry.scale2);
  });
}

bool Measures(PlanTool tool) {
  return tool == PlanTool::Measuring || PdfDraw::DrawsOutlines(tool);
}

}  // namespace

double FeetPerInch(const ScaleTexts& scale) {
  const double plan = FractionValue(scale.scale1);
  const double feet = Value(scale.scale2);
  if (plan <= 0 || feet <= 0) return 0;
  const PaperUnit unit = UnitOfText(scale.text5);
  const double ofInch = unit == PaperUnit::Inches        ? 1
                        : unit == PaperUnit::Millimetres ? 25.4
                                                         : 2.54;
  return feet / plan * ofInch;
}

ScaleTexts ScaleFor(double feetPerInch) {
  for (const ScaleEntry& entry : InchScales()) {
    ScaleTexts usual = {QLatin1String(entry.scale1), QLatin1String(entry.scale2),
                        QLatin1String(kInchText)};
    if (Alike(FeetPerInch(usual), feetPerInch)) return usual;
  }
  const double rounded = QString::number(feetPerInch, 'g', 6).toDouble();
  return {QStringLiteral("1"), NumberText(rounded), QLatin1String(kInchText)};
}

SheetScales::SheetScales(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanScale& scale,
                         PlanRecord& record)
    : kit_(kit), form_(form), viewer_(viewer), scale_(scale), record_(record), known_(kit) {
  form_.TakeScale.Hide();
  for (Control* control :
       std::initializer_list<Control*>{&form_.TakeScale, &form_.Calibrate, &form_.FollowSheet})
    control->takesFocus = false;
  form_.TakeScale.onClick = [this] { TakeOffered(); };
  form_.Calibrate.onClick = [this] { StartCalibrating(); };
  form_.FollowSheet.onChange = [this] { SheetChanged(); };
  scale_.onShown = [this] { ScaleChanged(); };
}

std::optional<KnownScales::Scale> SheetScales::KnownHere() const {
  if (viewer_.ShownFile().isEmpty()) return std::nullopt;
  return known_.Of(viewer_.ShownPath(), viewer_.Page());
}

void SheetScales::NoteHere(const ScaleTexts& texts, bool checked) {
  const auto known = KnownHere();
  const bool same = known.has_value() && known->checked == checked &&
                    known->texts.scale1 == texts.scale1 && known->texts.scale2 == texts.scale2 &&
                    known->texts.text5 == texts.text5;
  if (!same && !viewer_.ShownFile().isEmpty())
    known_.Note(viewer_.ShownPath(), viewer_.Page(), {texts, checked});
}

// A dimension of this sheet has proved it: that holds when it comes back.
bool SheetScales::WasProved(const ScaleTexts& texts) const {
  const auto known = KnownHere();
  return known.has_value() && known->checked &&
         Alike(FeetPerInch(known->texts), FeetPerInch(texts));
}

ScaleTexts SheetScales::InForce() const {
  return {form_.Scale1.Text(), form_.Scale2.Text(), form_.Text5.Text()};
}

// --- What happens

// A scale that a record brings was not set on the sheet in front.
void SheetScales::ScaleChanged() {
  const ScaleTexts now = InForce();
  const bool changed =
      now.scale1 != seen_.scale1 || now.scale2 != seen_.scale2 || now.text5 != seen_.text5;
  seen_ = now;
  if (changed && !record_.Loading() && FeetPerInch(now) > 0) NoteHere(now, WasProved(now));
  Refresh();
}

void SheetScales::SheetChanged() {
  printed_.clear();
  ToolPicked(viewer_.Tool());
}

// The sheet is read when something is measured on it, or when its scale is to be followed.
void SheetScales::ToolPicked(PlanTool tool) {
  calibrating_ = false;
  if (Measures(tool) || form_.FollowSheet.Value() == 1)
    viewer_.Snap().Lines().Want(viewer_.OpenedPlan(), viewer_.Page());
  SheetRead();
}

void SheetScales::SheetRead() {
  const auto read = printedOn ? printedOn(viewer_.Page()) : std::nullopt;
  printed_ = read.has_value() ? *read
                              : viewer_.Snap().Lines().Scales(viewer_.OpenedPlan(), viewer_.Page());
  Follow();
  Refresh();
}

// The scale that was set here goes before the one that is printed; of several printed ones none is
// taken without being asked for.
void SheetScales::Follow() {
  if (form_.FollowSheet.Value() != 1 || viewer_.ShownFile().isEmpty()) return;
  if (const auto known = KnownHere()) {
    if (!Alike(FeetPerInch(known->texts), FeetPerInch(InForce()))) scale_.Take(known->texts);
    return;
  }
  const PrintedScale* printed = Printed();
  if (printed == nullptr || SaysNotToScale()) return;
  const bool one = std::all_of(printed_.begin(), printed_.end(), [&](const PrintedScale& other) {
    return Alike(other.feetPerInch, printed->feetPerInch);
  });
  if (!one) return;
  if (Alike(printed->feetPerInch, FeetPerInch(InForce()))) {
    NoteHere(InForce(), false);
  } else {
    scale_.Take(TextsOf(*printed));
  }
}

void SheetScales::TakeOffered() {
  if (!offer_.has_value()) return;
  const ScaleTexts texts = offer_->texts;
  scale_.Take(texts);
  NoteHere(texts, WasProved(texts));
  Refresh();
}

void SheetScales::WasChecked() {
  NoteHere(InForce(), true);
  Refresh();
}

// --- Calibrating

void SheetScales::StartCalibrating() {
  const std::optional<double> feet = FeetOf(form_.KnownDimension.Text());
  if (!feet.has_value()) {
    form_.DimensionResult.SetCaption(
        QStringLiteral("Type a dimension of the plan first: 58'-5\", 12.5 (feet) or 3.2 m."));
    kit_.desk.Focus(form_.KnownDimension);
    return;
  }
  viewer_.PickTool(PlanTool::Measuring);
  viewer_.SetCheckNext(true);
  calibrating_ = true;
  form_.DimensionResult.SetCaption(
      QStringLiteral("Draw along the %1. The scale is set by it; it leaves no mark.")
          .arg(FeetInWords(*feet)));
  kit_.desk.Focus(form_.picPdfDraw);
}

bool SheetScales::TakeDimension(double paperLength) {
  if (!calibrating_) return false;
  calibrating_ = false;
  const double inches = paperLength / InPaperUnit(72, viewer_.Unit());
  const std::optional<double> feet = FeetOf(form_.KnownDimension.Text());
  if (!feet.has_value() || inches < kShortestDrawn) {
    form_.DimensionResult.SetCaption(
        QStringLiteral("The line is too short to set a scale by: draw along a longer dimension."));
    return true;
  }
  const ScaleTexts texts = ScaleFor(*feet / inches);
  scale_.Take(texts);
  NoteHere(texts, true);
  const QString drawn = LengthText(inches * FeetPerInch(texts));
  form_.DimensionResult.SetCaption(
      IsUsual(texts)
          ? QStringLiteral("Scale set: %1. By it the line is %2.").arg(InWords(texts), drawn)
          : QStringLiteral("Scale set: %1. It is no usual scale: the plan may be printed smaller "
                           "or larger than it was drawn.")
                .arg(InWords(texts)));
  Refresh();
  return true;
}

// --- What is said

const PrintedScale* SheetScales::Printed() const {
  const PrintedScale* nearest = nullptr;
  double least = 1e18;
  for (const PrintedScale& printed : printed_) {
    const double distance = Distance(printed.at, viewer_.CrossHair());
    if (printed.notToScale || distance >= least) continue;
    least = distance;
    nearest = &printed;
  }
  return nearest;
}

bool SheetScales::IsPrinted(double feetPerInch) const {
  return std::any_of(printed_.begin(), printed_.end(), [&](const PrintedScale& printed) {
    return !printed.notToScale && Alike(printed.feetPerInch, feetPerInch);
  });
}

bool SheetScales::SaysNotToScale() const {
  return std::any_of(printed_.begin(), printed_.end(),
                     [](const PrintedScale& printed) { return printed.notToScale; });
}

std::optional<SheetScales::Offer> SheetScales::WhatToOffer() const {
  const double inForce = FeetPerInch(InForce());
  if (const auto here = KnownHere()) {
    if (!Alike(FeetPerInch(here->texts), inForce)) return Offer{here->texts, InWords(here->texts)};
    if (here->checked) return std::nullopt;
  }
  const PrintedScale* printed = Printed();
  if (printed == nullptr || IsPrinted(inForce)) return std::nullopt;
  return Offer{TextsOf(*printed), InWords(TextsOf(*printed))};
}

QString SheetScales::Note() const {
  const double inForce = FeetPerInch(InForce());
  const auto here = KnownHere();
  const bool known = here.has_value();
  const QString now = InWords(InForce());
  if (known && !Alike(FeetPerInch(here->texts), inForce) && inForce > 0)
    return QStringLiteral("On this sheet %1 was used; in force is %2.").arg(offer_->words, now);
  if (known && inForce == 0)
    return QStringLiteral("On this sheet %1 was used; no scale is set now.").arg(offer_->words);
  if (known && offer_.has_value())
    return QStringLiteral("In force is %1, but this sheet prints %2.").arg(now, offer_->words);
  if (known) return {};
  if (SaysNotToScale() && Printed() == nullptr)
    return QStringLiteral("This sheet says NOT TO SCALE: check a dimension before you measure.");
  if (inForce == 0 && offer_.has_value())
    return QStringLiteral("This sheet prints the scale %1.").arg(offer_->words);
  if (inForce == 0) return {};
  if (offer_.has_value())
    return QStringLiteral("In force is %1, but this sheet prints %2.").arg(now, offer_->words);
  if (!IsPrinted(inForce))
    return QStringLiteral("The scale %1 was never set or checked on this sheet.").arg(now);
  return SaysNotToScale() ? QStringLiteral("A part of this sheet says NOT TO SCALE.") : QString();
}

void SheetScales::Refresh() {
  const bool blank = viewer_.ShownFile().isEmpty();
  offer_ = blank ? std::nullopt : WhatToOffer();
  form_.ScaleNote.SetCaption(blank ? QString() : Note());
  form_.ScaleNote.SetHover(form_.ScaleNote.Caption());
  form_.TakeScale.SetShown(offer_.has_value());
  if (offer_.has_value()) form_.TakeScale.SetCaption(QStringLiteral("&Use ") + offer_->words);
}

}  // namespace tamo
