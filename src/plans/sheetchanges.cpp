#include "plans/sheetchanges.h"

#include <algorithm>
#include <cmath>

#include "plans/overlayplan.h"

namespace tamo {
namespace {

constexpr double kMostPixels = 16e6;  // of the whole sheet
constexpr double kFinest = 2;         // pixels a point
constexpr int kSide = 1024;           // of a part

double FinenessFor(PageSize size) {
  return std::min(std::sqrt(kMostPixels / (size.width * size.height)), kFinest);
}

bool AddPart(const PaintedPair& pair, const PaintPart& part, CancelFlag& cancel,
             ChangedCells& cells) {
  PaintPart wide = part;
  OverlayMargin margin;
  margin.left = std::min(part.left, kOverlayReach);
  margin.top = std::min(part.top, kOverlayReach);
  wide.left -= margin.left;
  wide.top -= margin.top;
  wide.width += margin.left + (margin.right = kOverlayReach);
  wide.height += margin.top + (margin.bottom = kOverlayReach);
  std::vector<uint32_t> pixels(size_t(wide.width) * size_t(wide.height));
  if (!pair.now.Paint(pair.nowPage, wide, cancel, pixels.data())) return false;
  const Ink now = InkOf(pixels.data(), wide.width, wide.height);
  const Ink old =
      OverlayPlan::FittedInk(pair.old, pair.oldPage, pair.nowPage, pair.fit, wide, cancel);
  if (old.width == 0) return false;
  cells.Add(old, now, margin, part.left, part.top);
  return true;
}

ChangedPlace::Kind Back(ChangedPlace::Kind kind) {
  if (kind == ChangedPlace::Kind::Gone) return ChangedPlace::Kind::Come;
  return kind == ChangedPlace::Kind::Come ? ChangedPlace::Kind::Gone : kind;
}

QString LinesInWords(ChangedPlace::Kind kind) {
  switch (kind) {
    case ChangedPlace::Kind::Gone:
      return QStringLiteral("Lines gone");
    case ChangedPlace::Kind::Come:
      return QStringLiteral("New lines");
    default:
      return QStringLiteral("Lines changed");
  }
}

}  // namespace

bool FindChangedPlaces(const PaintedPair& pair, bool scan, CancelFlag& cancel,
                       std::vector<ChangedPlace>& places) {
  const PageSize size = pair.nowPage.Size();
  PaintPart part;
  part.pixelsPerPoint = FinenessFor(size);
  const int width = static_cast<int>(std::ceil(size.width * part.pixelsPerPoint));
  const int height = static_cast<int>(std::ceil(size.height * part.pixelsPerPoint));
  ChangedCells cells(size, part.pixelsPerPoint, scan);
  for (part.top = 0; part.top < height; part.top += kSide) {
    for (part.left = 0; part.left < width; part.left += kSide) {
      part.width = std::min(kSide, width - part.left);
      part.height = std::min(kSide, height - part.top);
      if (cancel.Cancelled() || !AddPart(pair, part, cancel, cells)) return false;
    }
  }
  places = cells.Places();
  return true;
}

void NamePlaces(std::vector<ChangedPlace>& places, const std::vector<ChangedPlace>& texts) {
  places.insert(places.end(), texts.begin(), texts.end());
  JoinPlaces(places);
  SortPlaces(places);
  for (ChangedPlace& place : places) {
    if (!place.words.isEmpty()) continue;
    place.words = LinesInWords(place.kind);
    place.back = LinesInWords(Back(place.kind));
  }
}

}  // namespace tamo
