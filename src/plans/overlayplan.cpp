#include "plans/overlayplan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "common/failure.h"
#include "plans/pixelmemory.h"
#include "plans/twoatonce.h"

namespace tamo {
namespace {

constexpr double kStraight = 2e-4;  // a turn that moves nothing by a pixel across a tile

struct Pixel {
  double x = 0;
  double y = 0;
};

struct Sheet {
  PageSize size;
  double pixelsPerPoint = 1;
  int turn = 0;
};

PagePoint PlaceOf(const Sheet& sheet, Pixel at) {
  const double x = at.x / sheet.pixelsPerPoint;
  const double y = at.y / sheet.pixelsPerPoint;
  switch (sheet.turn) {
    case 90:
      return {y, sheet.size.height - x};
    case 180:
      return {sheet.size.width - x, sheet.size.height - y};
    case 270:
      return {sheet.size.width - y, x};
    default:
      return {x, y};
  }
}

Pixel PixelOf(const Sheet& sheet, PagePoint at) {
  const double x = at.x * sheet.pixelsPerPoint;
  const double y = at.y * sheet.pixelsPerPoint;
  const double width = sheet.size.width * sheet.pixelsPerPoint;
  const double height = sheet.size.height * sheet.pixelsPerPoint;
  switch (sheet.turn) {
    case 90:
      return {height - y, x};
    case 180:
      return {width - x, height - y};
    case 270:
      return {y, width - x};
    default:
      return {x, y};
  }
}

// From pixels of the part, its corner at 0 0, to pixels of the whole old sheet.
struct Way {
  Pixel origin;
  Pixel right;  // what one pixel to the right is
  bool Straight() const { return std::abs(right.y) < kStraight; }
  Pixel Of(double x, double y) const {
    return {origin.x + right.x * x - right.y * y, origin.y + right.y * x + right.x * y};
  }
};

Way WayTo(const Sheet& old, const Sheet& now, const SheetFit& fit, const PaintPart& part) {
  const auto at = [&](double x, double y) {
    return PixelOf(old, fit.Back(PlaceOf(now, {part.left + x, part.top + y})));
  };
  const Pixel origin = at(0, 0);
  const Pixel far = at(part.width, 0);
  return {origin, {(far.x - origin.x) / part.width, (far.y - origin.y) / part.width}};
}

// The part of the old sheet that lies under the part wanted, one pixel more on each side; of no
// size when it does not reach there.
PaintPart PartUnder(const Way& way, const Sheet& old, const PaintPart& part) {
  double box[4] = {1e18, 1e18, -1e18, -1e18};
  for (int corner = 0; corner < 4; ++corner) {
    const Pixel at = way.Of(corner % 2 == 0 ? 0 : part.width, corner < 2 ? 0 : part.height);
    box[0] = std::min(box[0], at.x);
    box[1] = std::min(box[1], at.y);
    box[2] = std::max(box[2], at.x);
    box[3] = std::max(box[3], at.y);
  }
  const Sheet upright = {old.size, old.pixelsPerPoint, 0};
  Pixel whole = PixelOf(upright, {old.size.width, old.size.height});
  if (old.turn % 180 != 0) std::swap(whole.x, whole.y);
  const auto bound = [](double value, double most) {
    return static_cast<int>(std::clamp(value, 0.0, std::ceil(most)));
  };
  PaintPart under = part;
  under.pixelsPerPoint = old.pixelsPerPoint;
  under.turn = old.turn;
  under.left = bound(std::floor(box[0]) - 1, whole.x);
  under.top = bound(std::floor(box[1]) - 1, whole.y);
  under.width = bound(std::ceil(box[2]) + 1, whole.x) - under.left;
  under.height = bound(std::ceil(box[3]) + 1, whole.y) - under.top;
  return under;
}

// Rows are copied where the sheets lie straight, to the nearest pixel.
void CopyStraight(const Ink& from, const PaintPart& under, const Way& way, Ink& to) {
  const Pixel middle = way.Of(to.width / 2.0, to.height / 2.0);
  const int left = static_cast<int>(std::lround(middle.x - to.width / 2.0)) - under.left;
  const int top = static_cast<int>(std::lround(middle.y - to.height / 2.0)) - under.top;
  const int begin = std::max(0, -left);
  const int end = std::min(to.width, from.width - left);
  for (int y = std::max(0, -top); y < std::min(to.height, from.height - top); ++y) {
    if (begin < end) std::copy_n(from.Row(y + top) + left + begin, end - begin, to.Row(y) + begin);
  }
}

void CopyTurned(const Ink& from, const PaintPart& under, const Way& way, Ink& to) {
  for (int y = 0; y < to.height; ++y) {
    uint8_t* row = to.Row(y);
    for (int x = 0; x < to.width; ++x) {
      const Pixel at = way.Of(x + 0.5, y + 0.5);
      const double px = at.x - under.left - 0.5;
      const double py = at.y - under.top - 0.5;
      const int left = static_cast<int>(std::floor(px));
      const int top = static_cast<int>(std::floor(py));
      if (left < 0 || top < 0 || left + 1 >= from.width || top + 1 >= from.height) continue;
      const double partX = px - left;
      const double partY = py - top;
      const uint8_t* upper = from.Row(top) + left;
      const uint8_t* lower = from.Row(top + 1) + left;
      row[x] = static_cast<uint8_t>((upper[0] * (1 - partX) + upper[1] * partX) * (1 - partY) +
                                    (lower[0] * (1 - partX) + lower[1] * partX) * partY);
    }
  }
}

// Both pages ready.
class OverlaidPage : public LoadedPage {
 public:
  OverlaidPage(std::shared_ptr<LoadedPage> now, std::shared_ptr<LoadedPage> old)
      : now_(std::move(now)), old_(std::move(old)) {}
  PageSize Size() const override { return now_->Size(); }
  PageGaps Gaps() const override {
    const PageGaps now = now_->Gaps();
    const PageGaps old = old_->Gaps();
    return {now.pictures || old.pictures, now.patterns || old.patterns,
            now.contents || old.contents};
  }
  const LoadedPage& Now() const { return *now_; }
  const LoadedPage& Old() const { return *old_; }

 private:
  const std::shared_ptr<LoadedPage> now_;
  const std::shared_ptr<LoadedPage> old_;
};

// A pixel more on each side where the sheet goes on, so that edges look at their neighbours.
OverlayMargin Widen(PaintPart& part, PageSize size) {
  const Sheet sheet = {size, part.pixelsPerPoint, 0};
  Pixel whole = PixelOf(sheet, {size.width, size.height});
  if (part.turn % 180 != 0) std::swap(whole.x, whole.y);
  OverlayMargin margin;
  margin.left = part.left > 0 ? kOverlayReach : 0;
  margin.top = part.top > 0 ? kOverlayReach : 0;
  margin.right = part.left + part.width < whole.x ? kOverlayReach : 0;
  margin.bottom = part.top + part.height < whole.y ? kOverlayReach : 0;
  part.left -= margin.left;
  part.top -= margin.top;
  part.width += margin.left + margin.right;
  part.height += margin.top + margin.bottom;
  return margin;
}

}  // namespace

Ink OverlayPlan::FittedInk(EnginePlan& plan, const LoadedPage& old, const LoadedPage& now,
                           const SheetFit& fit, const PaintPart& part, CancelFlag& cancel) {
  const Sheet under = {old.Size(), part.pixelsPerPoint * fit.Size(),
                       (part.turn + 90 * fit.Quarters()) % 360};
  const Way way = WayTo(under, {now.Size(), part.pixelsPerPoint, part.turn}, fit, part);
  const PaintPart wanted = PartUnder(way, under, part);
  Ink ink(part.width, part.height);
  if (wanted.width <= 0 || wanted.height <= 0) return ink;
  Pixels pixels(size_t(wanted.width) * size_t(wanted.height));
  if (!plan.Paint(old, wanted, cancel, pixels.data())) return {};
  const Ink painted = InkOf(pixels.data(), wanted.width, wanted.height);
  (way.Straight() ? CopyStraight : CopyTurned)(painted, wanted, way, ink);
  return ink;
}

// The two engines read at once.
std::shared_ptr<LoadedPage> OverlayPlan::LoadPage(int page, CancelFlag& cancel) {
  std::shared_ptr<LoadedPage> now;
  std::shared_ptr<LoadedPage> old;
  TwoAtOnce(
      cancel, [&](CancelFlag& flag) { now = sheets_.now->LoadPage(page, flag); },
      [&](CancelFlag& flag) { old = sheets_.old->LoadPage(sheets_.oldPage, flag); });
  if (now == nullptr || old == nullptr) return nullptr;
  return std::make_shared<OverlaidPage>(now, old);
}

bool OverlayPlan::Paint(const LoadedPage& page, const PaintPart& part, CancelFlag& cancel,
                        uint32_t* pixels) {
  const auto& both = static_cast<const OverlaidPage&>(page);
  if (sheets_.layer == OverlayLayer::Now)
    return sheets_.now->Paint(both.Now(), part, cancel, pixels);
  PaintPart wide = part;
  const OverlayMargin margin = Widen(wide, both.Size());
  Ink old = FittedInk(*sheets_.old, both.Old(), both.Now(), sheets_.fit, wide, cancel);
  if (old.width == 0) return false;
  Ink now(wide.width, wide.height);
  if (sheets_.layer == OverlayLayer::Both) {
    Pixels painted(now.darkness.size());
    if (!sheets_.now->Paint(both.Now(), wide, cancel, painted.data())) return false;
    now = InkOf(painted.data(), wide.width, wide.height);
    if (sheets_.swapped) std::swap(old, now);
  } else {
    now = old;  // alone it is grey
  }
  LayOver(old, now, margin, pixels);
  return true;
}

PlanContents OverlayPlan::Open(const QString& /*password*/) {
  return {};
}

PageContent OverlayPlan::ReadContent(int page, CancelFlag& cancel) {
  return sheets_.now->ReadContent(page, cancel);
}

PlanUpdate OverlayPlan::BuildUpdate(const MarkChanges& /*changes*/) {
  PlanUpdate update;
  update.error = kFileOther;
  return update;
}

int OverlayPlan::WriteWhole(const Sink& /*sink*/, QString& /*problem*/) {
  return kFileOther;
}

}  // namespace tamo
