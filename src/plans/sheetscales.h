#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "common/kit.h"
#include "plans/knownscales.h"
#include "plans/planscale.h"
#include "plans/printedscale.h"

namespace tamo {

// Holds the scale in force against the sheet in front: what was set or checked on it, and what it
// prints itself. Says above the plan when they differ, offers the scale that belongs to the sheet,
// takes it by itself where that is wanted, and sets a scale by a dimension that is drawn.
class SheetScales {
 public:
  SheetScales(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanScale& scale,
              PlanRecord& record);

  void SheetChanged();  // another page or plan is in front
  void SheetRead();     // what it prints is known
  // What a page prints, as far as somebody has read it already; may be left unset.
  std::function<std::optional<std::vector<PrintedScale>>(int page)> printedOn;
  void ToolPicked(PlanTool tool);
  bool Calibrating() const { return calibrating_; }
  // A dimension was drawn, in the viewer's paper unit. True when the scale was to be set by it.
  bool TakeDimension(double paperLength);
  // The scale was held against a dimension and is right.
  void WasChecked();

 private:
  struct Offer {
    ScaleTexts texts;
    QString words;  // as the scale is said
  };

  std::optional<KnownScales::Scale> KnownHere() const;
  void NoteHere(const ScaleTexts& texts, bool checked);
  bool WasProved(const ScaleTexts& texts) const;
  ScaleTexts InForce() const;
  void ScaleChanged();
  void Refresh();
  void Follow();
  void TakeOffered();
  void StartCalibrating();
  QString Note() const;
  const PrintedScale* Printed() const;  // the one nearest to the cross hair
  bool IsPrinted(double feetPerInch) const;
  bool SaysNotToScale() const;
  std::optional<Offer> WhatToOffer() const;

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanScale& scale_;
  PlanRecord& record_;
  mutable KnownScales known_;          // reads its file when it is first asked
  std::vector<PrintedScale> printed_;  // of the sheet in front
  ScaleTexts seen_;                    // the fields when they were last looked at
  std::optional<Offer> offer_;
  bool calibrating_ = false;
};

// Feet of one inch of paper; 0 when there is no scale.
double FeetPerInch(const ScaleTexts& scale);
// The usual scale for inches within three thousandths of it, or the number itself.
ScaleTexts ScaleFor(double feetPerInch);

}  // namespace tamo
