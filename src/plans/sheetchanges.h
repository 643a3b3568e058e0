#pragma once

#include <vector>

#include "plans/changedcells.h"
#include "plans/planengine.h"

namespace tamo {

// Two sheets that are ready to be painted.
struct PaintedPair {
  EnginePlan& now;
  EnginePlan& old;
  const LoadedPage& nowPage;
  const LoadedPage& oldPage;
  SheetFit fit;
};

// Paints both sheets part by part and gathers where they differ. False when one of them can't be
// painted, or it was cancelled. A point has one and a third pixels on a sheet of 36 by 48 inches,
// more on smaller ones.
bool FindChangedPlaces(const PaintedPair& pair, bool scan, CancelFlag& cancel,
                       std::vector<ChangedPlace>& places);

// Words for places where only lines differ, and where texts do: the texts' places join those of
// the lines that they lie in.
void NamePlaces(std::vector<ChangedPlace>& places, const std::vector<ChangedPlace>& texts);

}  // namespace tamo
