#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "plans/picture.h"

namespace tamo {

// What a window looks at. Device pixels throughout.
struct PlanView {
  int page = 1;
  double pixelsPerPoint = 1;  // see PixelsPerPoint
  int turn = 0;  // 0, 90, 180, 270 degrees clockwise, on top of the page's own rotation
  // The visible part, in pixels of the whole turned page at this scale.
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// A picture and the rectangle, in pixels of the whole turned page, over which it is to be
// stretched.
struct PlacedPicture {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  std::shared_ptr<const Picture> picture;
};

// The plan as pictures, without the marks of this program (the window paints those on top, so a
// mark that is taken back is gone at once). Pictures are made on threads of their own: every call
// comes back at once with what is there, and onPicturesChanged tells when more is. One thread
// calls.
class PlanPictures {
 public:
  virtual ~PlanPictures() = default;

  // Says what is visible now; what was asked for before and is not visible any more is dropped.
  virtual void Look(const PlanView& view) = 0;
  // What is there for the view, in painting order: coarse first, sharp over it. Where nothing is
  // yet the sheet is white.
  virtual std::vector<PlacedPicture> PicturesFor(const PlanView& view) = 0;
  // A small picture of a page, null until it is made; asking for it has it made, after what is
  // visible. The longer side has `longSide` pixels.
  virtual std::shared_ptr<const Picture> Thumbnail(int page, int longSide) = 0;
  // Waits for the picture of a part of a page, for printing. Bounded in time; null when it fails.
  // `meanwhile`, when there is one, is called every few milliseconds.
  virtual std::shared_ptr<const Picture> PrintPicture(const PlanView& part,
                                                      const std::function<void()>& meanwhile) = 0;

  std::function<void()> onPicturesChanged;  // on the thread of the forms
};

// Device pixels of one point of paper: at 100 per cent a plan stands in its true size on a screen
// of 96 pixels an inch.
inline double PixelsPerPoint(int zoomPerCent, double devicePixelRatio) {
  return zoomPerCent / 100.0 * 96.0 / 72.0 * devicePixelRatio;
}

}  // namespace tamo
